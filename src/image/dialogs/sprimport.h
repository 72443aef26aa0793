#pragma once

#include "editors/import/importdlg.h"

namespace Zorv {
class Sprites;
}

/// Chooses sprites of another open project to import into a collection; an `ImportDlg` that shows
/// the picture of each.
class ZORV_EXPORT SprImport : public ImportDlg
{
    Q_OBJECT

public:
    /// Offers the sprites of all sprite files of a project.
    SprImport(Zorv::Interface* host, Zorv::Sprites* destination);
    ~SprImport() override;

protected:
    QVector<QAbstractItemModel*> lists(const Zorv::Project* project) const override;
    QString identifier(const QModelIndex& index) const override;
    QImage picture(const QModelIndex& index) const override;
    QSet<QString> present() const override;
    bool isUsable(const QString& identifier) const override;

private:
    QPointer<Zorv::Sprites> m_destination;
};
