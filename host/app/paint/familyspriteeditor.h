#pragma once

#include "app/window/windowservices.h"

#include <zorv/image/spriteeditor.h>

namespace Family {
class SpriteCollection;
}

namespace App {

/// The library's sprite editor for this engine family: a dialog of the window imports images, and
/// removing a sprite asks first if something uses it.
class FamilySpriteEditor : public Zorv::SpriteEditor
{
    Q_OBJECT

public:
    FamilySpriteEditor(const WindowServices& services, Zorv::PaletteEditor* palettes,
                       QObject* parent = nullptr);

protected:
    bool takeFiles(Zorv::Sprites* into, const QStringList& files) override;
    bool spriteUses(QStringList* places) const override;
    bool mayDeleteSprite() override;

private:
    Family::SpriteCollection* collection() const;

    const WindowServices& m_services;
};

}  // namespace App
