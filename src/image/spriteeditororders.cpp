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

// A colour that moves in a palette takes the pixels of the sprites along, and undo brings them
// back. A canvas can have more than its sprite: layers that are covered or hidden. So the orders
// are kept. When the palette of a sprite has come to be in one of them, or back, and its pixels are
// where that puts them, all layers follow: those of the canvas at once, those of a canvas that is
// kept when it comes back.

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

/// Of the palette of a sprite. Entries that it lacks are opaque black: a palette that is reordered
/// has all of them.
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

/// Before the first one nobody had to know the colours.
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

/// The sprite of a canvas that is kept; null if it is no more.
const Sprite* SpriteEditorPrivate::spriteOf(const KeptCanvas& canvas)
{
    const int at = canvas.sprites ? canvas.sprites->find(0, canvas.identifier) : -1;
    const Sprite* found = at >= 0 ? canvas.sprites->sprite(at) : nullptr;
    return !canvas.record || canvas.record == found ? found : nullptr;
}

/// Where each index has gone, if one of the orders, or taking it back, has made colours and picture
/// what those of the sprite are now. The colours are made these.
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

/// A canvas of another file hears of nothing: it looks before the next move, and when it is wanted.
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

/// Who paints goes on in the same colours: what erased must not draw.
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

/// In all layers. The steps of the history are of the old indices, and go.
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
