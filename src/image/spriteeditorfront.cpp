#include "cache/palettes.h"
#include "cache/sprites.h"
#include "image/spriteeditor_p.h"

// While the canvas keeps work, another project can be in front: the stage shows that one then. What
// is offered beside the stage, the panel of palettes and "spr_add", belongs to what the person sees
// there, and to the canvas again as soon as that is seen.

namespace Zorv {

/// What the person sees the sprites of.
Sprites* SpriteEditorPrivate::inFront() const
{
    return isWaiting && !editor->isActive() ? waiting.data() : sprites.data();
}

/// True while the panel has palettes that are not those of the canvas.
bool SpriteEditorPrivate::isAway() const
{
    return palettes && palettes->palettes() != (sprites ? sprites->palettes() : nullptr);
}

void SpriteEditorPrivate::showPalettes()
{
    Sprites* seen = inFront();
    Palettes* wanted = seen ? seen->palettes() : nullptr;
    if (palettes && palettes->palettes() != wanted) {
        palettes->setPalettes(wanted);
        if (!isAway()) {
            loadColors();
        }
    }
    updateEnabled();
}

SpriteEditorPrivate::OwnPalettes::OwnPalettes(SpriteEditorPrivate* d) : m_d(d)
{
    if (d->isAway()) {
        d->palettes->setPalettes(d->sprites ? d->sprites->palettes() : nullptr);
        d->loadColors();
    }
}

SpriteEditorPrivate::OwnPalettes::~OwnPalettes()
{
    m_d->showPalettes();
}

}  // namespace Zorv
