#pragma once

#include "family/assets/pixeldata.h"

#include <zorv/cache/preparedimage.h>

#include <QCache>
#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
#include <mutex>

namespace Zorv {
class FileCache;
}

namespace Family {

class SpriteTextures;
class PackedImage;
struct PackedPixels;

/// The pixels of a collection: their caches, the filters that pack and unpack them, and recently
/// unpacked pixels.
///
/// A cache item is a stream; its type is the codec. Decoded, it consists of the rows without
/// padding, then width, height, bits and 0, 16 bits each, little-endian. So equal bytes mean equal
/// pictures. All `PixelRef` must be destroyed before the store. Main thread only.
class PixelStore : public QObject
{
    Q_OBJECT

public:
    /// The setting "cache_type" chooses the kind of cache.
    PixelStore();
    ~PixelStore() override;

    Zorv::StreamCache* cache() const { return m_cache.get(); }

    /// Stores a stream unchanged, without unpacking it. The checksums come from its file; 0 if
    /// unknown.
    PixelRef adopt(const PixelFormat& format, const QByteArray& stream, quint64 pixelCrc,
                   quint64 streamCrc);

    /// Refers to an image file of a loose folder. Its format must be known.
    PixelRef adoptFile(const PixelFormat& format, const QString& fileName, quint64 pixelCrc);

    /// Stores new pixels in the smallest lossless codec; existing equal pixels are only referenced
    /// once more. `image` is `Format_Indexed8` or `Format_ARGB32`. Null for an image without pixels
    /// or too large for a sprite.
    PixelRef add(const QImage& image);

    /// The same for pixels that are already packed; `rows` is their unpacked form. If the stream is
    /// empty, they are packed here.
    PixelRef add(const PackedPixels& packed, const QByteArray& rows);
    PixelRef add(const PackedImage& image);

    /// The same pixels in another codec; null if that would lose data.
    PixelRef recoded(PixelData* data, PixelCodec codec);

    /// The packed bytes, as written to a file.
    QByteArray stream(const PixelData* data) const;

    /// The unpacked rows, from a cache of recent ones if possible; empty if the stream is broken.
    QByteArray rows(const PixelData* data);

    /// Drops the unpacked pixels.
    void forget(const PixelData* data);

    /// The textures with which the stage draws the pixels.
    SpriteTextures* textures() { return m_textures.get(); }

    /// Moves the bytes of a file in a loose folder into the cache if pixels refer to it. Call
    /// before it is overwritten or deleted.
    void takeIn(const QString& fileName);

private:
    friend class PixelData;
    void unpack(unsigned char type, void* filterData, const QByteArray& source, QByteArray& target);
    PixelRef known(const PackedPixels& packed, const QByteArray& rows) const;
    void gone(PixelData* data);

    std::unique_ptr<Zorv::StreamCache> m_cache;
    std::unique_ptr<Zorv::FileCache> m_files;
    QHash<QString, PixelData*> m_byFile;
    QCache<const PixelData*, QByteArray> m_unpacked;
    std::unique_ptr<SpriteTextures> m_textures;
    quint32 m_nextOrder = 0;
};

/// Packed pixels outside of a store, to be unpacked and packed on any thread.
struct PackedPixels
{
    PackedPixels() = default;
    explicit PackedPixels(const PixelData& data);

    /// Packs rows in the codec of `format`, or in the smallest one if that is `None` or cannot hold
    /// them.
    static PackedPixels pack(PixelFormat format, const QByteArray& rows);

    /// The unpacked rows; empty if there are none or a checksum is wrong.
    QByteArray rows() const;

    PixelFormat format;
    QByteArray stream;
    quint64 streamCrc = 0;
    quint64 pixelCrc = 0;
};

/// Remembers which pixels were packed, so that equal ones are not packed again. Thread-safe.
class PackedOnce
{
public:
    /// True for the first call with this checksum.
    bool isFirst(quint64 crc);

private:
    std::mutex m_mutex;
    QSet<quint64> m_seen;
};

/// An image in the format of a sprite, with its pixels already packed, on any thread.
class PackedImage final : public Zorv::PreparedImage
{
public:
    /// Uses this codec, or the smallest one if it is `None` or cannot hold the pixels.
    PackedImage(const QImage& image, PackedOnce* once, PixelCodec codec = PixelCodec::None);

    /// Both are empty for an image without pixels or too large for a sprite. If only the stream is
    /// empty, equal pixels were most likely packed before.
    const QByteArray& rows() const { return m_rows; }
    const PackedPixels& packed() const { return m_packed; }

private:
    QByteArray m_rows;
    PackedPixels m_packed;
};

}  // namespace Family
