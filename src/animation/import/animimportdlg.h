#pragma once

#include "editors/import/importdlg.h"

class QCheckBox;

namespace Zorv {
class Animations;
}

/// Chooses animations of another open project for a list of animations, as `ImportDlg` does: each
/// has a picture, of the first frame with a sprite. The sprites that they show can come along.
class ZORV_EXPORT AnimImportDlg : public ImportDlg
{
    Q_OBJECT

public:
    /// All animations of all files of code of a project are offered.
    AnimImportDlg(Zorv::Interface* host, Zorv::Animations* destination);
    ~AnimImportDlg() override;

    /// Whether sprites and palettes come along.
    bool bringsSprites() const;

protected:
    QVector<QAbstractItemModel*> lists(const Zorv::Project* project) const override;
    QString identifier(const QModelIndex& index) const override;
    QImage picture(const QModelIndex& index) const override;
    QSet<QString> present() const override;
    bool isUsable(const QString& identifier) const override;

private:
    QPointer<Zorv::Animations> m_destination;
    QCheckBox* m_sprites;
};
