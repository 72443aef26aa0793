#include "cache/sprite.h"
#include "cache/sprites.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/spriteeditor_p.h"

#include <algorithm>

// A least-recently-used cache of canvases with layers and history, for the sprites shown last. When
// a sprite is shown again it gets its canvas back, if the sprite has not changed since. The cache
// and the history of the present canvas share the history's memory limit.

namespace Zorv {

/// Does not keep a canvas that can simply be read from its sprite, or one with unsaved work.
void SpriteEditorPrivate::keepCanvas()
{
    const bool isWorthIt = history()->count() > 0 || layers()->count() > 1;
    if (!isWorthIt || !sprite() || sprite() != shown || isChanged()) {
        return;
    }
    endPreview();
    KeptCanvas left;
    left.sprites = sprites;
    left.record = shown;
    left.identifier = identifier;
    left.loaded = loaded;
    left.loadedAxis = loadedAxis;
    left.colors = colorsOf(shown);
    left.hasToldHidden = hasToldHidden;
    {
        const ImageRenderer::Change change(renderer);
        left.content = canvas()->takeContent();
    }
    left.bytes = loaded.sizeInBytes() + left.content->byteSize();
    kept.push_back(std::move(left));
    keepToBudget();
}

/// Shows the kept canvas that matches the sprite as it is now; false if there is none.
bool SpriteEditorPrivate::bringBack()
{
    const Sprite* now = sprite();
    const QImage stored = canvasForm(now->image());
    followInKept();
    const auto found = std::find_if(kept.begin(), kept.end(), [&](const KeptCanvas& each) {
        return each.sprites == sprites && each.identifier == identifier &&
               (!each.record || each.record == now) && each.loadedAxis == now->axis() &&
               areSamePixels(each.loaded, stored);
    });
    if (found == kept.end()) {
        return false;
    }
    KeptCanvas back = std::move(*found);
    kept.erase(found);
    loaded = stored;
    loadedAxis = back.loadedAxis;
    loadedColors = colorsOf(now);
    hasToldHidden = back.hasToldHidden;
    loadColors();
    {
        const ImageRenderer::Change change(renderer);
        canvas()->putContent(std::move(back.content));
    }
    if (back.places != sameOrder()) {
        moveIndices(back.places);
    }
    storedHidden = hiddenLayers();
    touched = {};
    retranslate();
    emit editor->spriteShown();
    return true;
}

void SpriteEditorPrivate::keepToBudget()
{
    qint64 bytes = history()->byteSize();
    for (const KeptCanvas& each : kept) {
        bytes += each.bytes;
    }
    while (!kept.empty() && bytes > history()->budget()) {
        bytes -= kept.front().bytes;
        kept.pop_front();
    }
}

/// Drops the canvases of a file that closes.
void SpriteEditorPrivate::dropKept(const Sprites* of)
{
    const auto isGone = [of](const KeptCanvas& each) {
        return !each.sprites || each.sprites == of;
    };
    kept.erase(std::remove_if(kept.begin(), kept.end(), isGone), kept.end());
}

/// Forgets addresses of sprites, because their file was reloaded.
void SpriteEditorPrivate::forgetRecords()
{
    for (KeptCanvas& each : kept) {
        each.record = each.sprites == sprites ? nullptr : each.record;
    }
}

}  // namespace Zorv
