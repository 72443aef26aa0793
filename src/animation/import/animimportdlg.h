#pragma once

#include "editors/import/importdlg.h"

class QCheckBox;

namespace Zorv {
class Animations;
}

/// Chooses animations of another open project to import into a list. Based on `ImportDlg`. Each
/// animation is shown with the picture of its first frame that has a sprite. Sprites can be
/// imported along.
class ZORV_EXPORT AnimImportDlg : public ImportDlg
{
    Q_OBJECT

public:
    /// Offers all animations in all code files of a project.
    AnimImportDlg(Zorv::Interface* host, Zorv::Animations* destination);
    ~AnimImportDlg() override;

    /// Whether to import sprites and palettes too.
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
