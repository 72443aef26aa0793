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

/// Lets a person choose what is imported from another open project, and what it is called here.
///
/// What there is stands in one list, what is to come in another; a dialog for a kind of things
/// derives from it. Projects may close while it is open: with the source what was chosen goes, with
/// the destination the dialog does. Main thread only.
class ZORV_EXPORT ImportDlg : public QDialog
{
    Q_OBJECT

public:
    ~ImportDlg() override;

    /// False, after a warning, if the host has no other project open than the destination.
    static bool hasSource(const Zorv::Interface* host);

    /// What was chosen, all of one project. Null, and nothing, if that has gone.
    struct Info
    {
        QPointer<Zorv::Project> source;
        QVector<Zorv::ImportEntry> entries;
        Zorv::ImportConflict conflicts;  ///< what happens to names that are there already
    };
    Info getInfo() const;

protected:
    /// Of pictures of rows, in pixels at 96 dots an inch.
    static constexpr int PictureSide = 48;

    /// All open projects of the host are offered but `destination`; null offers all. An override's
    /// constructor ends in `start()`.
    ImportDlg(Zorv::Interface* host, Zorv::Project* destination);

    /// Fills the lists, with pictures of so many pixels each way; 0 for none.
    void start(int pictureSide);

    /// Puts a widget below the lists.
    void addOption(QWidget* widget);

    /// The destination has other identifiers than before.
    void readPresent();

    /// The lists of a project that hold what can be imported. They tell of each change; a row's
    /// text is `Qt::DisplayRole`.
    virtual QVector<QAbstractItemModel*> lists(const Zorv::Project* project) const = 0;

    /// Of a row of these lists; the picture is null for none.
    virtual QString identifier(const QModelIndex& index) const = 0;
    virtual QImage picture(const QModelIndex& index) const;

    /// The identifiers that the destination has, and whether it could have one.
    virtual QSet<QString> present() const = 0;
    virtual bool isUsable(const QString& identifier) const = 0;

private:
    friend class ImportDlgPrivate;
    std::unique_ptr<ImportDlgPrivate> d;
};
