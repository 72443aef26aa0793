#include "family/assets/spritecollection.h"

#include "family/assets/pixelstore.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritetables.h"

#include <zorv/cache/crc64.h>

#include <QMultiHash>

namespace Family {

namespace {

using Data = SpriteFileData;

quint64 checksum(const QByteArray& bytes)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(bytes.constData()), unsigned(bytes.size()));
}

/// Writes loose images in the format of a sprite file. GIF is converted, since sprite files have no
/// GIF; sizes and checksums are computed again, since another program may have changed an image.
bool writeLoose(QIODevice* device, Data data, const AssetSnapshot::BytesOf& bytesOf)
{
    QVector<QByteArray> streams;
    for (int i = 0; i < data.streams.size(); ++i) {
        Data::Stream& stream = data.streams[i];
        QByteArray bytes = bytesOf(i);
        if (stream.format.codec == PixelCodec::Gif) {
            const QByteArray rows = unpackPixels(stream.format, bytes);
            stream.format.codec = PixelCodec::Png;
            bytes = packPixels(stream.format, rows);
        }
        stream.size = quint32(bytes.size());
        stream.streamCrc = checksum(bytes);
        streams.append(bytes);
    }
    return data.write(device, [&](int stream) { return streams[stream]; });
}

/// Finds existing pixels by the data that a file stores about them.
class KnownPixels
{
public:
    explicit KnownPixels(const QVector<PixelRef>& pixels)
    {
        for (const PixelRef& pixel : pixels) {
            if (pixel->record.isEmpty() && pixel->pixelCrc != 0) {
                m_pixels.insert(pixel->pixelCrc, pixel);
            }
        }
    }

    PixelRef find(const Data::Stream& stream) const
    {
        const QList<PixelRef> alike = m_pixels.values(stream.pixelCrc);
        for (const PixelRef& pixel : alike) {
            const PixelFormat& format = pixel->format;
            const bool isCodec =
                format.codec == stream.format.codec || format.codec == PixelCodec::Gif;
            if (stream.broken.isEmpty() && isCodec && format.size == stream.format.size &&
                format.bits == stream.format.bits) {
                return pixel;
            }
        }
        return {};
    }

private:
    QMultiHash<quint64, PixelRef> m_pixels;
};

}  // namespace

bool SpriteCollection::readContent(QIODevice* device, const Adopt& adopt, Content* content,
                                   QString* error)
{
    Data data;
    if (!data.read(device, error)) {
        return false;
    }
    content->errors = data.problems;
    QVector<PixelRef> pixels;
    pixels.reserve(data.streams.size());
    for (const Data::Stream& stream : qAsConst(data.streams)) {
        const QByteArray bytes = Data::readStream(device, stream);
        if (stream.inFile && quint32(bytes.size()) != stream.size) {
            *error = device->errorString();
            return false;
        }
        pixels.append(adopt(stream, bytes));
    }
    for (const Data::Palette& from : qAsConst(data.palettes)) {
        content->palettes.append(std::make_shared<FamilyPalette>(palettes()));
        content->palettes.last()->state = {from.id, from.count, from.colors, from.broken};
    }
    for (const Data::Remap& from : qAsConst(data.remaps)) {
        content->remaps.append(std::make_shared<RemapItem>());
        content->remaps.last()->state = {from.from, from.to, from.broken};
    }
    takeSprites(data, pixels, content);
    return true;
}

void SpriteCollection::takeSprites(const Data& data, const QVector<PixelRef>& pixels,
                                   Content* content)
{
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
}

PixelRef SpriteCollection::adopted(PixelStore* store, const Data::Stream& stream,
                                   const QByteArray& bytes)
{
    const PixelRef pixels = store->adopt(stream.format, bytes, stream.pixelCrc, stream.streamCrc);
    pixels->record = stream.broken;
    pixels->isGuess = stream.isGuess;
    return pixels;
}

std::shared_ptr<AssetSnapshot> SpriteCollection::snapshot()
{
    const SpriteTables tables(*this, keptPixels());
    QStringList images;
    for (const ItemPtr& sprite : items()) {
        images.append(sprite->state.file);
    }
    const bool isLoose = isFolder();
    auto result = m_snapshots.add(
        tables.pixels.size(),
        [store = m_store.get(), pixels = tables.pixels](int i) {
            return store->stream(pixels[i].get());
        },
        [data = tables.data, isLoose](QIODevice* device, const AssetSnapshot::BytesOf& bytesOf) {
            return isLoose ? writeLoose(device, data, bytesOf) : data.write(device, bytesOf);
        });
    result->images = isLoose ? images : QStringList();
    return result;
}

bool SpriteCollection::restore(QIODevice* device, const QStringList& images, QString* error)
{
    refresh();
    const KnownPixels known(SpriteTables(*this, keptPixels()).pixels);
    const auto adopt = [&](const Data::Stream& stream, const QByteArray& bytes) {
        const PixelRef pixels = known.find(stream);
        return pixels ? pixels : adopted(m_store.get(), stream, bytes);
    };
    Content content;
    if (!readContent(device, adopt, &content, error)) {
        return false;
    }
    for (int i = 0; i < content.sprites.size(); ++i) {
        content.sprites[i]->state.file = images.value(i);
    }
    const AssetHistory::Step step(m_history, tr("Restore unsaved sprites"));
    removeItems(0, items().size());
    m_palettes->replace(content.palettes);
    m_palettes->remaps()->replace(content.remaps);
    m_history.record(
        std::make_unique<AssetHistory::Swap<QVector<PixelRef>>>(&m_unshown, content.unshown));
    m_history.record(std::make_unique<AssetHistory::Swap<QVector<PixelRef>>>(&m_all, content.all));
    insertItems(0, content.sprites);
    return true;
}

}  // namespace Family
