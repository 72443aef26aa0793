#include "cache/sprite.h"
#include "cache/sprites.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/spriteeditor_p.h"

#include <algorithm>

// The canvases of the sprites that were shown last, with their layers and their histories. A sprite
// that comes back has its canvas again, if it is what the canvas knows of it. Together with the
// history in front they keep to the budget of that; the one that was not seen for longest goes
// first.

namespace Zorv {

/// Nothing for a canvas that reading its sprite gives as well, or with work that is not saved.
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

/// Shows the canvas that is kept for the sprite as it is now; false if there is none.
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

/// Those of a file that closes.
void SpriteEditorPrivate::dropKept(const Sprites* of)
{
    const auto isGone = [of](const KeptCanvas& each) {
        return !each.sprites || each.sprites == of;
    };
    kept.erase(std::remove_if(kept.begin(), kept.end(), isGone), kept.end());
}

/// The file was read anew: its sprites have other addresses.
void SpriteEditorPrivate::forgetRecords()
{
    for (KeptCanvas& each : kept) {
        each.record = each.sprites == sprites ? nullptr : each.record;
    }
}

}  // namespace Zorv
