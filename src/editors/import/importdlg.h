#pragma once

#include "editors/import/importentry.h"
#include "zorv_export.h"

#include <QDialog>
#include <QPointer>
#include <QSet>
#include <QVector>

#include <memory>

class ImportModel;
class QAbstractItemModel;

namespace Zorv {
class Interface;
class Project;
}  // namespace Zorv

class ImportDlgPrivate;

/// Lets the user choose what to import from another open project, and the new identifiers.
///
/// One list has what is available, another what was chosen. Derive from it for each kind of things.
/// Projects may close while it is open: if the source closes, its choices vanish; if the
/// destination closes, so does the dialog. Main thread only.
class ZORV_EXPORT ImportDlg : public QDialog
{
    Q_OBJECT

public:
    ~ImportDlg() override;

    /// Returns false, after a warning, if the host has no open project besides the destination.
    static bool hasSource(const Zorv::Interface* host);

    /// The choice, all from one project. Null and empty if that project was closed.
    struct Info
    {
        QPointer<Zorv::Project> source;
        QVector<Zorv::ImportEntry> entries;
        Zorv::ImportConflict conflicts;  ///< what to do with existing identifiers
    };
    Info getInfo() const;

protected:
    /// The side of row pictures, in pixels at 96 dpi.
    static constexpr int PictureSide = 48;

    /// Offers all open projects of the host except `destination`; null offers all. The constructor
    /// of a derived class must end with `start()`.
    ImportDlg(Zorv::Interface* host, Zorv::Project* destination);

    /// Fills the lists, with square pictures of this many pixels; 0 for none.
    void start(int pictureSide);

    /// Adds a widget below the lists.
    void addOption(QWidget* widget);

    /// Call when the identifiers of the destination have changed.
    void readPresent();

    /// The lists of a project with things to import. They must signal each change; the text of a
    /// row is `Qt::DisplayRole`.
    virtual QVector<QAbstractItemModel*> lists(const Zorv::Project* project) const = 0;

    /// Identifier and picture of a row of these lists; a null picture for none.
    virtual QString identifier(const QModelIndex& index) const = 0;
    virtual QImage picture(const QModelIndex& index) const;

    /// The identifiers in the destination, and whether an identifier could be used there.
    virtual QSet<QString> present() const = 0;
    virtual bool isUsable(const QString& identifier) const = 0;

private:
    friend class ImportDlgPrivate;
    std::unique_ptr<ImportDlgPrivate> d;
};
