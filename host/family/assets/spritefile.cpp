#include "family/assets/spritefile.h"

#include "family/assets/assetreload.h"
#include "family/assets/pixelstore.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritefiledata.h"

#include <zorv/core/archive.h>

#include <QBuffer>
#include <QDir>
#include <QHash>
#include <algorithm>

namespace Family {

namespace {

using Data = SpriteFileData;

// In the order of their places in the file that they came from, new ones behind.
QVector<PixelData*> orderedPixels(const SpriteCollection& sprites, const QVector<PixelRef>& kept)
{
    QVector<PixelData*> pixels;
    for (const PixelRef& pixel : kept) {
        pixels.append(pixel.get());
    }
    for (const auto& sprite : sprites.items()) {
        if (sprite->state.pixels) {
            pixels.append(sprite->state.pixels.get());
        }
    }
    std::sort(pixels.begin(), pixels.end(),
              [](const PixelData* a, const PixelData* b) { return a->order < b->order; });
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

Data tablesOf(const SpriteCollection& sprites, const QVector<PixelData*>& pixels)
{
    Data data;
    QHash<const PixelData*, quint32> places;
    for (const PixelData* pixel : pixels) {
        places.insert(pixel, quint32(data.streams.size()));
        data.streams.append(streamOf(pixel));
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
    return data;
}

// A temporary file that has lost bytes must not be found out when the old file is gone.
bool allThere(const PixelStore& store, const QVector<PixelData*>& pixels)
{
    return std::all_of(pixels.begin(), pixels.end(), [&](const PixelData* pixel) {
        return !pixel->item || store.stream(pixel).size() == pixel->item->size;
    });
}

}  // namespace

SpriteFile::SpriteFile() = default;

SpriteFile::~SpriteFile() = default;

bool SpriteFile::fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly, &reason);
    if (!device) {
        setErrorString(reason);
        return false;
    }
    Content content;
    bool done = false;
    if (device->isSequential()) {
        QBuffer buffer;
        buffer.setData(device->readAll());
        buffer.open(QIODevice::ReadOnly);
        done = readContent(&buffer, &content, &reason);
    } else {
        done = readContent(device, &content, &reason);
    }
    archive.closeFile(device);
    if (!done) {
        setErrorString(tr("Cannot read %1: %2.").arg(QDir::toNativeSeparators(fileName), reason));
        return false;
    }
    take(std::move(content), asCopy);
    FileWatchObject::fromFile(archive, fileName, asCopy);
    if (!asCopy) {
        setFileName(fileName);
        setArchive(&archive);
    }
    setErrorString({});
    return true;
}

bool SpriteFile::readContent(QIODevice* device, Content* content, QString* error)
{
    Data data;
    if (!data.read(device, error)) {
        return false;
    }
    content->errors = data.problems;
    content->store = std::make_unique<PixelStore>();
    QVector<PixelRef> pixels;
    pixels.reserve(data.streams.size());
    for (const Data::Stream& stream : data.streams) {
        const QByteArray bytes = Data::readStream(device, stream);
        if (stream.inFile && quint32(bytes.size()) != stream.size) {
            *error = device->errorString();
            return false;
        }
        pixels.append(
            content->store->adopt(stream.format, bytes, stream.pixelCrc, stream.streamCrc));
        pixels.last()->record = stream.broken;
        pixels.last()->isGuess = stream.isGuess;
    }
    for (const Data::Palette& from : data.palettes) {
        content->palettes.append(std::make_shared<FamilyPalette>(palettes()));
        content->palettes.last()->state = {from.id, from.count, from.colors, from.broken};
    }
    for (const Data::Remap& from : data.remaps) {
        content->remaps.append(std::make_shared<RemapItem>());
        content->remaps.last()->state = {from.from, from.to, from.broken};
    }
    QVector<bool> used(pixels.size());
    content->sprites.reserve(data.sprites.size());
    bool keepAll = false;
    for (const Data::Sprite& from : data.sprites) {
        auto sprite = std::make_shared<FamilySprite>(this);
        sprite->state.id = from.id;
        sprite->state.axis = from.axis;
        sprite->state.record = from.broken;
        keepAll |= !from.broken.isEmpty();
        if (from.stream != Data::None) {
            sprite->state.pixels = pixels[int(from.stream)];
            used[int(from.stream)] = true;
        }
        if (from.palette != Data::None) {
            sprite->state.palette = content->palettes[int(from.palette)];
        }
        content->sprites.append(sprite);
    }
    for (int i = 0; i < pixels.size(); ++i) {
        if (!used[i]) {
            content->unshown.append(pixels[i]);
        }
    }
    if (keepAll) {
        content->all = pixels;
    }
    return true;
}

bool SpriteFile::toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    refresh();
    const QVector<PixelData*> pixels = orderedPixels(*this, keptPixels());
    const QString name = QDir::toNativeSeparators(fileName);
    if (!allThere(*store(), pixels)) {
        setErrorString(tr("Cannot write %1: pixels that were kept in a temporary file are lost. "
                          "Make room on the disk of temporary files, and add them anew.")
                           .arg(name));
        return false;
    }
    const Data data = tablesOf(*this, pixels);
    const QString oldName = this->fileName();
    FileWatchObject::toFile(archive, fileName, asCopy);
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::WriteOnly, &reason);
    bool done = device != nullptr;
    if (device) {
        data.write(device, [&](int index) { return store()->stream(pixels[index]); });
        done = archive.closeFile(device, &reason);
    }
    if (!done) {
        setErrorString(reason.isEmpty() ? tr("Cannot write %1.").arg(name) : reason);
        renewWatch(oldName);
        return false;
    }
    if (!asCopy) {
        setClean();
        setFileName(fileName);
        setArchive(&archive);
        renewWatch(fileName);
    }
    setErrorString({});
    return true;
}

bool SpriteFile::reload()
{
    return reloadAssets(*this, steps(), tr("Sprites"));
}

}  // namespace Family
