#pragma once

#include "editors/import/importdlg.h"

namespace Zorv {
class Sounds;
}

/// Chooses sounds of another open project, as `ImportDlg` does.
class ZORV_EXPORT SndImportDlg : public ImportDlg
{
    Q_OBJECT

public:
    /// For the sounds of the project in front; their project is not offered.
    explicit SndImportDlg(Zorv::Interface* host);

    /// For these sounds.
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
