#include "family/assets/pixelstore.h"

#include "family/assets/assetcache.h"
#include "family/assets/spritetextures.h"

#include <zorv/cache/crc64.h>
#include <zorv/cache/filecache.h>

#include <QtEndian>
#include <limits>

namespace Family {

namespace {

constexpr uchar UnknownItem = 254;  // a type of no codec

constexpr int MostUnpacked = 64 * 1024 * 1024;  // bytes

quint64 checksum(const QByteArray& bytes)
{
    return Zorv::crc64(reinterpret_cast<const unsigned char*>(bytes.constData()),
                       unsigned(bytes.size()));
}

// The bytes that follow the rows in decoded form.
quint64 tail(const PixelFormat& format)
{
    return quint64(format.size.width()) | quint64(format.size.height()) << 16 |
           quint64(format.bits) << 32;
}

// The CRC of decoded bytes (rows, then tail), computed from that of the rows alone. A CRC XORs its
// first eight bytes into the start register, which is all ones. So eight suitable bytes bring it
// into the state after the rows, XORed with the tail.
quint64 decodedChecksum(quint64 pixelCrc, const PixelFormat& format)
{
    if (pixelCrc == 0) {
        return 0;
    }
    unsigned char bytes[8];
    qToLittleEndian<quint64>(~(pixelCrc ^ tail(format)), bytes);
    return Zorv::crc64(bytes, sizeof bytes);
}

bool fitsSprite(const QImage& image)
{
    return !image.isNull() && image.width() <= LargestSprite && image.height() <= LargestSprite &&
           qint64(image.width()) * image.height() * (image.depth() / 8) <=
               std::numeric_limits<int>::max() / 2;
}

PackedPixels unpacked(const QImage& image, const QByteArray& rows)
{
    PackedPixels pixels;
    pixels.format = {image.size(), image.depth(), PixelCodec::None};
    pixels.pixelCrc = checksum(rows);
    return pixels;
}

QByteArray decodedBytes(const PixelFormat& format, QByteArray rows)
{
    if (!rows.isEmpty()) {
        const quint64 end = qToLittleEndian(tail(format));
        rows.append(reinterpret_cast<const char*>(&end), sizeof end);
    }
    return rows;
}

}  // namespace

PixelStore::PixelStore()
    : m_cache(newAssetCache()), m_files(std::make_unique<Zorv::FileCache>()),
      m_unpacked(MostUnpacked), m_textures(std::make_unique<SpriteTextures>())
{
    for (Zorv::StreamCache* cache :
         {m_cache.get(), static_cast<Zorv::StreamCache*>(m_files.get())}) {
        connect(cache, &Zorv::StreamCache::readFilter, this, &PixelStore::unpack,
                Qt::DirectConnection);
    }
}

PixelStore::~PixelStore() = default;

PixelRef PixelStore::adopt(const PixelFormat& format, const QByteArray& stream, quint64 pixelCrc,
                           quint64 streamCrc)
{
    auto* data = new PixelData(this, m_cache.get());
    data->format = format;
    data->pixelCrc = pixelCrc;
    data->streamCrc = streamCrc;
    data->order = m_nextOrder++;
    if (!stream.isEmpty()) {
        // With type 0 the cache would pack the bytes, but those of a broken record must stay
        // unchanged.
        const uchar type = format.codec == PixelCodec::None ? UnknownItem : uchar(format.codec);
        data->fromData(stream, type, data, decodedChecksum(pixelCrc, format));
    }
    return PixelRef(data);
}

PixelRef PixelStore::adoptFile(const PixelFormat& format, const QString& fileName, quint64 pixelCrc)
{
    auto* data = new PixelData(this, m_files.get(), fileName);
    data->format = format;
    data->pixelCrc = pixelCrc;
    data->order = m_nextOrder++;
    data->item->filterData = data;
    data->item->crc = decodedChecksum(pixelCrc, format);
    m_byFile.insert(fileName, data);
    return PixelRef(data);
}

PixelRef PixelStore::add(const QImage& image)
{
    if (!fitsSprite(image)) {
        return {};
    }
    const QByteArray rows = rowsOfImage(image);
    return add(unpacked(image, rows), rows);
}

PixelRef PixelStore::add(const PackedPixels& packed, const QByteArray& rows)
{
    const PixelRef same = known(packed, rows);
    if (same) {
        return same;
    }
    const PackedPixels& whole =
        packed.stream.isEmpty() ? PackedPixels::pack(packed.format, rows) : packed;
    return adopt(whole.format, whole.stream, whole.pixelCrc, whole.streamCrc);
}

PixelRef PixelStore::add(const PackedImage& image)
{
    return image.rows().isEmpty() ? PixelRef() : add(image.packed(), image.rows());
}

/// Equal streams need not be unpacked for comparison.
PixelRef PixelStore::known(const PackedPixels& packed, const QByteArray& rows) const
{
    const QByteArray decoded = decodedBytes(packed.format, rows);
    const quint64 pixelCrc = packed.pixelCrc != 0 ? packed.pixelCrc : checksum(rows);
    const quint64 crc = decodedChecksum(pixelCrc, packed.format);
    for (const Zorv::StreamCache* cache :
         {m_cache.get(), static_cast<Zorv::StreamCache*>(m_files.get())}) {
        if (const auto* item =
                cache->find(decoded, crc, packed.stream, uchar(packed.format.codec))) {
            auto* same = static_cast<PixelData*>(item->filterData);
            ++same->refCount;
            return PixelRef(same);
        }
    }
    return {};
}

PixelRef PixelStore::recoded(PixelData* data, PixelCodec codec)
{
    PixelFormat format = data->format;
    format.codec = codec;
    const QByteArray pixels = rows(data);
    const QByteArray stream = packPixels(format, pixels);
    return stream.isEmpty() ? PixelRef()
                            : adopt(format, stream, checksum(pixels), checksum(stream));
}

QByteArray PixelStore::stream(const PixelData* data) const
{
    return data->item ? data->toData(true) : QByteArray();
}

QByteArray PixelStore::rows(const PixelData* data)
{
    if (const QByteArray* known = m_unpacked.object(data)) {
        return *known;
    }
    const QByteArray pixels = PackedPixels(*data).rows();
    if (!pixels.isEmpty()) {
        m_unpacked.insert(data, new QByteArray(pixels), pixels.size());
    }
    return pixels;
}

void PixelStore::forget(const PixelData* data)
{
    m_unpacked.remove(data);
    m_textures->drop(data);
}

void PixelStore::takeIn(const QString& fileName)
{
    if (PixelData* data = m_byFile.take(fileName)) {
        const QByteArray bytes = stream(data);
        data->reset();
        data->cache = m_cache.get();
        data->fromData(bytes, uchar(data->format.codec), data,
                       decodedChecksum(data->pixelCrc, data->format));
    }
}

void PixelStore::unpack(unsigned char, void* filterData, const QByteArray& source,
                        QByteArray& target)
{
    const auto* data = static_cast<const PixelData*>(filterData);
    if (data && data->record.isEmpty()) {
        target = decodedBytes(data->format, unpackPixels(data->format, source));
    }
}

void PixelStore::gone(PixelData* data)
{
    if (data->cache == m_files.get()) {
        m_byFile.remove(data->fileName());
    }
    m_unpacked.remove(data);
    m_textures->drop(data);
}

PackedPixels::PackedPixels(const PixelData& data) : format(data.format)
{
    if (data.record.isEmpty() && data.item) {
        stream = data.toData(true);
        streamCrc = data.streamCrc;
        pixelCrc = data.pixelCrc;
    }
}

PackedPixels PackedPixels::pack(PixelFormat format, const QByteArray& rows)
{
    PackedPixels packed;
    packed.stream = packPixels(format, rows);
    if (packed.stream.isEmpty()) {
        format.codec = smallestCodec(format, rows, &packed.stream);
    }
    packed.format = format;
    packed.streamCrc = checksum(packed.stream);
    packed.pixelCrc = checksum(rows);
    return packed;
}

QByteArray PackedPixels::rows() const
{
    if (streamCrc != 0 && checksum(stream) != streamCrc) {
        return {};
    }
    const QByteArray pixels = unpackPixels(format, stream);
    return pixelCrc != 0 && checksum(pixels) != pixelCrc ? QByteArray() : pixels;
}

bool PackedOnce::isFirst(quint64 crc)
{
    const std::lock_guard lock(m_mutex);
    const int before = m_seen.size();
    m_seen.insert(crc);
    return m_seen.size() > before;
}

PackedImage::PackedImage(const QImage& image, PackedOnce* once, PixelCodec codec)
    : PreparedImage(normalizedImage(image))
{
    if (!fitsSprite(this->image())) {
        return;
    }
    m_rows = rowsOfImage(this->image());
    m_packed = unpacked(this->image(), m_rows);
    if (once->isFirst(decodedChecksum(m_packed.pixelCrc, m_packed.format))) {
        m_packed = PackedPixels::pack({m_packed.format.size, m_packed.format.bits, codec}, m_rows);
    }
}

}  // namespace Family
