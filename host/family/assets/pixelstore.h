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

/// The pixels of a collection: their caches, the filters that pack and unpack them, and what was
/// unpacked of late.
///
/// Bytes of a cache are a stream in the codec that is the item's type. Decoded they are the rows
/// without padding and, behind them, width, height, bits and 0, 16 bits each, little-endian; so
/// equal bytes are equal pictures. All `PixelRef` must go before the store. Main thread only.
class PixelStore : public QObject
{
    Q_OBJECT

public:
    /// A store that the setting "cache_type" chooses.
    PixelStore();
    ~PixelStore() override;

    Zorv::StreamCache* cache() const { return m_cache.get(); }

    /// Takes up a stream as it is, without unpacking it; the checksums are those of its file, 0 if
    /// they are not known.
    PixelRef adopt(const PixelFormat& format, const QByteArray& stream, quint64 pixelCrc,
                   quint64 streamCrc);

    /// Takes up an image file of a loose folder. The form has to be known.
    PixelRef adoptFile(const PixelFormat& format, const QString& fileName, quint64 pixelCrc);

    /// Stores new pixels in the smallest codec that loses nothing; pixels that are there
    /// already are only counted once more. `image` is `Format_Indexed8` or `Format_ARGB32`. Null
    /// for an image without pixels or larger than a sprite can be.
    PixelRef add(const QImage& image);

    /// The same for pixels that are packed already, `rows` being what they unpack to. Without a
    /// stream they are packed here.
    PixelRef add(const PackedPixels& packed, const QByteArray& rows);
    PixelRef add(const PackedImage& image);

    /// The same pixels in another codec; null if it would lose something.
    PixelRef recoded(PixelData* data, PixelCodec codec);

    /// The packed bytes, as they go to a file.
    QByteArray stream(const PixelData* data) const;

    /// The unpacked rows, from what was unpacked of late; empty if the stream is broken.
    QByteArray rows(const PixelData* data);

    /// Forgets what was unpacked.
    void forget(const PixelData* data);

    /// What the stage draws the pixels with.
    SpriteTextures* textures() { return m_textures.get(); }

    /// Brings the bytes of a file of a loose folder into the cache, if pixels are in it; for before
    /// it is written over or removed.
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

/// Packed pixels by themselves, to be unpacked and packed on any thread.
struct PackedPixels
{
    PackedPixels() = default;
    explicit PackedPixels(const PixelData& data);

    /// Packs rows in the codec of the format, or in the smallest one if that one cannot hold them
    /// or is none.
    static PackedPixels pack(PixelFormat format, const QByteArray& rows);

    /// The unpacked rows; empty if there are none, or a checksum is wrong.
    QByteArray rows() const;

    PixelFormat format;
    QByteArray stream;
    quint64 streamCrc = 0;
    quint64 pixelCrc = 0;
};

/// Which pixels were packed, so that equal ones are not packed again. Any thread.
class PackedOnce
{
public:
    /// True for the first with this checksum.
    bool isFirst(quint64 crc);

private:
    std::mutex m_mutex;
    QSet<quint64> m_seen;
};

/// An image in the form of a sprite whose pixels are packed already, on any thread.
class PackedImage final : public Zorv::PreparedImage
{
public:
    /// In that codec, or in the smallest one if that one cannot hold them or is none.
    PackedImage(const QImage& image, PackedOnce* once, PixelCodec codec = PixelCodec::None);

    /// Nothing in both for an image without pixels, or larger than a sprite can be. Without a
    /// stream equal ones were packed, most likely.
    const QByteArray& rows() const { return m_rows; }
    const PackedPixels& packed() const { return m_packed; }

private:
    QByteArray m_rows;
    PackedPixels m_packed;
};

}  // namespace Family
