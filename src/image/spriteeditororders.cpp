#include "cache/palette.h"
#include "cache/sprite.h"
#include "cache/sprites.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/spriteeditor_p.h"

#include <algorithm>
#include <cstring>

// When a colour moves to another palette entry, the pixels of the stored sprites are changed along
// with it, and undo changes them back. A canvas can have more than its sprite: covered and hidden
// layers. So recent reorderings are remembered. When the palette of a sprite changes by one of them
// or its inverse, and the sprite's pixels moved the same way, all layers are changed, too: on the
// present canvas at once, on a kept canvas when it is shown again.

namespace Zorv {

namespace {

constexpr size_t MostOrders = 32;

bool leadsTo(const PaletteOrder& places, const QImage& before, const QImage& after)
{
    if (before.format() != QImage::Format_Indexed8 || before.format() != after.format() ||
        before.size() != after.size()) {
        return false;
    }
    for (int y = 0; y < before.height(); ++y) {
        const uchar* from = before.constScanLine(y);
        if (!std::equal(from, from + before.width(), after.constScanLine(y),
                        [&places](uchar a, uchar b) { return places[a] == b; })) {
            return false;
        }
    }
    return true;
}

bool areSame(const EntryColors& a, const EntryColors& b)
{
    return std::memcmp(a.data(), b.data(), sizeof a) == 0;
}

bool isReordered(EntryColors before, const PaletteOrder& order, const EntryColors& after)
{
    reorder(before.data(), order);
    return areSame(before, after);
}

QImage moved(QImage image, const PaletteOrder& places)
{
    for (int y = 0; y < image.height(); ++y) {
        uchar* row = image.scanLine(y);
        std::transform(row, row + image.width(), row,
                       [&places](uchar pixel) { return places[pixel]; });
    }
    return image;
}

}  // namespace

/// The colours of a sprite's palette. Missing entries are opaque black; a reordered palette has all
/// of them.
EntryColors SpriteEditorPrivate::colorsOf(const Sprite* sprite)
{
    RGBA entries[256];
    std::fill(std::begin(entries), std::end(entries), RGBA{0, 0, 0, 255});
    if (const Palette* palette = sprite ? sprite->palette() : nullptr) {
        palette->toPalette(entries);
    }
    EntryColors colors;
    std::copy(std::begin(entries), std::end(entries), colors.begin());
    return colors;
}

/// Also starts to track the colours of all canvases: before the first order nobody needs them.
void SpriteEditorPrivate::rememberOrder(const PaletteOrder& order)
{
    followInKept();
    orders.push_back(order);
    if (orders.size() > MostOrders) {
        orders.pop_front();
    }
    loadedColors = colorsOf(sprite());
    for (KeptCanvas& each : kept) {
        each.colors = colorsOf(spriteOf(each));
    }
}

/// The sprite of a kept canvas; null if it is gone.
const Sprite* SpriteEditorPrivate::spriteOf(const KeptCanvas& canvas)
{
    const int at = canvas.sprites ? canvas.sprites->find(0, canvas.identifier) : -1;
    const Sprite* found = at >= 0 ? canvas.sprites->sprite(at) : nullptr;
    return !canvas.record || canvas.record == found ? found : nullptr;
}

/// Returns where each index has moved, if one of the orders or its inverse turns the old colours
/// and picture into the present ones of the sprite. Also updates `colorsBefore` to the present
/// ones.
std::optional<PaletteOrder> SpriteEditorPrivate::takeMove(const Sprite& now, const QImage& before,
                                                          EntryColors* colorsBefore) const
{
    const EntryColors was = *colorsBefore;
    *colorsBefore = colorsOf(&now);
    const bool isOtherOrder = !areSame(was, *colorsBefore);
    QImage stored;
    for (auto order = orders.rbegin(); order != orders.rend(); ++order) {
        for (const PaletteOrder& each : {*order, inverse(*order)}) {
            if (!isReordered(was, each, *colorsBefore)) {
                continue;
            }
            stored = stored.isNull() ? canvasForm(now.image()) : stored;
            const bool isMoved = isOtherOrder || !areSamePixels(before, stored);
            if (isMoved && leadsTo(inverse(each), before, stored)) {
                return inverse(each);
            }
        }
    }
    return {};
}

/// Kept canvases of other files get no signals, so they are checked before the next order and
/// before they are shown.
void SpriteEditorPrivate::followInKept()
{
    for (size_t i = 0; !orders.empty() && i < kept.size(); ++i) {
        KeptCanvas& each = kept[i];
        const Sprite* of = spriteOf(each);
        if (const auto move = of ? takeMove(*of, each.loaded, &each.colors) : std::nullopt) {
            each.loaded = moved(each.loaded, *move);
            std::transform(each.places.begin(), each.places.end(), each.places.begin(),
                           [&move](quint8 place) { return (*move)[place]; });
        }
    }
}

/// The foreground and background move along: an eraser must not start to draw.
void SpriteEditorPrivate::followMoves()
{
    if (orders.empty() || selGuard > 0) {
        return;
    }
    followInKept();
    const Sprite* now = sprite();
    const bool isThere = now && now == shown && canvas()->format() == ImageCanvas::IndexedFormat;
    if (const auto move = isThere ? takeMove(*now, loaded, &loadedColors) : std::nullopt) {
        const bool isModified = editor->isCanvasModified();
        loaded = canvasForm(now->image());
        moveIndices(*move);
        colors->setForeground((*move)[colors->foreground()]);
        colors->setBackground((*move)[colors->background()]);
        touch(QRect(QPoint(), canvas()->size()));
        isModified ? history()->resetClean() : setStored();
    }
}

/// Changes all layers. The history is cleared, because its steps hold old indices.
void SpriteEditorPrivate::moveIndices(const PaletteOrder& places)
{
    const ImageRenderer::Change change(renderer);
    canvas()->endStroke();
    for (unsigned i = 0; i < layers()->count(); ++i) {
        ImageLayer* layer = layers()->at(i);
        if (layer->image().format() == QImage::Format_Indexed8) {
            layer->setImage(moved(layer->image(), places));
        }
    }
    history()->clear();
}

}  // namespace Zorv
