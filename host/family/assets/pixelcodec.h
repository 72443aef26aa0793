#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace Family {

/// How pixels are packed: the codec byte of a sprite file, and the type of their cache item.
enum class PixelCodec : quint8 {
    None = 0,
    Lz5 = 1,
    Rle8 = 2,
    Png = 4,
    Pcx = 5,
    Gif = 8,  ///< only in loose files
};

/// What must be known to unpack pixels.
struct PixelFormat
{
    QSize size;
    int bits = 8;  ///< per pixel: 8 for an index, 32 for blue, green, red and alpha
    PixelCodec codec = PixelCodec::None;

    /// The size of all rows in bytes, without padding.
    qint64 byteCount() const { return qint64(size.width()) * size.height() * (bits / 8); }
};

/// The maximum width and height of a sprite.
constexpr int LargestSprite = 16384;

/// Converts a codec to its name ("LZ5", "RLE8", "PNG", "PCX", "GIF"; empty for `None`) and back,
/// ignoring case.
QString codecName(PixelCodec codec);
PixelCodec codecByName(const QString& name);

/// Unpacks a stream into rows from the top, without padding. Empty if it is broken or declares more
/// pixels than its bytes can hold. Any thread.
QByteArray unpackPixels(const PixelFormat& format, const QByteArray& stream);

/// Reads an image file (PNG, PCX, or the first frame of a GIF) in one of the formats of sprites.
/// Null if it is broken, too large for a sprite, or declares more than its bytes can hold. Any
/// thread.
QImage readImageFile(PixelCodec codec, const QByteArray& file);

/// Packs rows. Empty if the codec would lose data, such as LZ5 with an index of 32 or more, or does
/// not support the format. Any thread.
QByteArray packPixels(const PixelFormat& format, const QByteArray& rows);

/// The lossless codec with the fewest bytes, and its stream.
PixelCodec smallestCodec(const PixelFormat& format, const QByteArray& rows, QByteArray* stream);

/// Converts an image to one of the two formats of sprites, `Format_Indexed8` or `Format_ARGB32`:
/// indices and shades of grey stay indices, everything else becomes true colour.
QImage normalizedImage(const QImage& image);

/// Convert rows to an image and back. An image of 8 bits gets the given colours; one of 32 bits is
/// `Format_ARGB32`.
QImage imageOfRows(const PixelFormat& format, const QByteArray& rows, const QVector<QRgb>& colors);
QByteArray rowsOfImage(const QImage& image);

}  // namespace Family
