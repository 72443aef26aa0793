#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/spriteeditor_p.h"

#include <algorithm>

// A colour that moves in a palette takes the pixels of the sprites along, and undo brings them
// back. A canvas can have more than its sprite: layers that are covered or hidden. So the orders
// are kept, and when a sprite has come to be other indices by one of them, or back, all layers
// follow.

namespace Zorv {

namespace {

constexpr size_t MostOrders = 32;

bool leadsTo(const PaletteOrder& places, const QImage& before, const QImage& after)
{
    for (int y = 0; y < before.height(); ++y) {
        const uchar* from = before.constScanLine(y);
        if (!std::equal(from, from + before.width(), after.constScanLine(y),
                        [&places](uchar a, uchar b) { return places[a] == b; })) {
            return false;
        }
    }
    return true;
}

PaletteOrder joined(PaletteOrder first, const PaletteOrder& then)
{
    for (quint8& place : first) {
        place = then[place];
    }
    return first;
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

void SpriteEditorPrivate::rememberOrder(const PaletteOrder& order)
{
    orders.push_back(order);
    if (orders.size() > MostOrders) {
        orders.pop_front();
    }
}

/// Where each index has gone, if moves that follow each other, or taking them back, make one
/// picture the other.
std::optional<PaletteOrder> SpriteEditorPrivate::moveBetween(const QImage& before,
                                                             const QImage& after) const
{
    const bool isAlike = before.size() == after.size() && before.format() == after.format();
    if (!isAlike || before.format() != QImage::Format_Indexed8) {
        return {};
    }
    for (auto last = orders.rbegin(); last != orders.rend(); ++last) {
        PaletteOrder forth = sameOrder();
        for (auto first = last; first != orders.rend(); ++first) {
            forth = joined(inverse(*first), forth);
            for (const PaletteOrder& places : {forth, inverse(forth)}) {
                if (leadsTo(places, before, after)) {
                    return places;
                }
            }
        }
    }
    return {};
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
