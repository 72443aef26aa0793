#include "cache/palettes.h"
#include "cache/sprites.h"
#include "image/spriteeditor_p.h"

// While the canvas has unsaved work, another project can be in front, and the stage shows that one.
// The palette panel and "spr_add", which are offered beside the stage, then belong to the project
// the user sees there. When the canvas comes to the front again, they belong to the canvas.

namespace Zorv {

/// The sprites of what the user sees: the canvas or the stage.
Sprites* SpriteEditorPrivate::inFront() const
{
    return isWaiting && !editor->isActive() ? waiting.data() : sprites.data();
}

/// True while the panel shows other palettes than the canvas's.
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
