#pragma once

#include "app/window/windowservices.h"

#include <zorv/image/spriteeditor.h>

namespace Family {
class SpriteCollection;
}

namespace App {

/// The library's editor of sprites for those of the family: new ones are numbered as the names of
/// their files tell, else within the group that is worked on, and who names a sprite is asked about
/// before it goes.
class FamilySpriteEditor : public Zorv::SpriteEditor
{
    Q_OBJECT

public:
    FamilySpriteEditor(const WindowServices& services, Zorv::PaletteEditor* palettes,
                       QObject* parent = nullptr);

protected:
    void newIdentifiers(const Zorv::Sprites& into, const QStringList& files,
                        QList<QVariant>* identifiers) override;
    bool spriteUses(QStringList* places) const override;
    bool mayDeleteSprite() override;

private:
    Family::SpriteCollection* collection() const;

    const WindowServices& m_services;
};

}  // namespace App
