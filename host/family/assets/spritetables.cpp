#include "family/assets/spritetables.h"

#include "family/assets/palettelist.h"
#include "family/assets/pixelstore.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritecollection.h"

#include <QHash>

#include <algorithm>

namespace Family {

namespace {

using Data = SpriteFileData;

// In the order of the file that they came from, then new ones.
QVector<PixelRef> orderedPixels(const SpriteCollection& sprites, QVector<PixelRef> pixels)
{
    for (const auto& sprite : sprites.items()) {
        if (sprite->state.pixels) {
            pixels.append(sprite->state.pixels);
        }
    }
    std::sort(pixels.begin(), pixels.end(),
              [](const PixelRef& a, const PixelRef& b) { return a->order < b->order; });
    pixels.erase(std::unique(pixels.begin(), pixels.end()), pixels.end());
    return pixels;
}

Data::Stream streamOf(const PixelData* pixels)
{
    Data::Stream stream;
    stream.inFile = pixels->item != nullptr;
    stream.size = pixels->item ? quint32(pixels->item->size) : 0;
    stream.format = pixels->format;
    stream.pixelCrc = pixels->pixelCrc;
    stream.streamCrc = pixels->streamCrc;
    stream.broken = pixels->record;
    stream.isGuess = pixels->isGuess;
    return stream;
}

}  // namespace

SpriteTables::SpriteTables(const SpriteCollection& sprites, const QVector<PixelRef>& kept)
    : pixels(orderedPixels(sprites, kept))
{
    QHash<const PixelData*, quint32> places;
    for (const PixelRef& pixel : qAsConst(pixels)) {
        places.insert(pixel.get(), quint32(data.streams.size()));
        data.streams.append(streamOf(pixel.get()));
    }
    for (const auto& palette : sprites.palettes()->items()) {
        const FamilyPalette::State& state = palette->state;
        data.palettes.append({state.id, state.count, state.colors, state.record});
    }
    for (const auto& sprite : sprites.items()) {
        const FamilySprite::State& state = sprite->state;
        data.sprites.append(
            {state.id, state.axis, state.pixels ? places.value(state.pixels.get()) : Data::None,
             state.palette ? quint32(state.palette->row) : Data::None, state.record});
    }
    for (const auto& remap : sprites.palettes()->remaps()->items()) {
        data.remaps.append({remap->state.from, remap->state.to, remap->state.record});
    }
}

bool SpriteTables::isAllThere(const PixelStore& store) const
{
    return std::all_of(pixels.begin(), pixels.end(), [&](const PixelRef& pixel) {
        return !pixel->item || store.stream(pixel.get()).size() == pixel->item->size;
    });
}

}  // namespace Family
