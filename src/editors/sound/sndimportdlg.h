#pragma once

#include "editors/import/importdlg.h"

namespace Zorv {
class Sounds;
}

/// Chooses sounds from another open project; see `ImportDlg`.
class ZORV_EXPORT SndImportDlg : public ImportDlg
{
    Q_OBJECT

public:
    /// Imports into the active project's sounds. That project is not offered as a
    /// source.
    explicit SndImportDlg(Zorv::Interface* host);

    /// Imports into these sounds.
    SndImportDlg(Zorv::Interface* host, Zorv::Sounds* destination);
    ~SndImportDlg() override;

protected:
    QVector<QAbstractItemModel*> lists(const Zorv::Project* project) const override;
    QString identifier(const QModelIndex& index) const override;
    QSet<QString> present() const override;
    bool isUsable(const QString& identifier) const override;

private:
    QPointer<Zorv::Sounds> m_destination;
};
