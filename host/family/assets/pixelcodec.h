#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace Family {

/// How pixels are packed: the codec byte of a sprite file, and the type of their item in a cache.
enum class PixelCodec : quint8 {
    None = 0,
    Lz5 = 1,
    Rle8 = 2,
    Png = 4,
    Pcx = 5,
    Gif = 8,  ///< in loose files only
};

/// The form of pixels: what has to be known to unpack them.
struct PixelFormat
{
    QSize size;
    int bits = 8;  ///< a pixel: 8 for an index, 32 for blue, green, red and alpha
    PixelCodec codec = PixelCodec::None;

    /// Bytes of the rows together, without padding.
    qint64 byteCount() const { return qint64(size.width()) * size.height() * (bits / 8); }
};

/// The largest width and height of a sprite.
constexpr int LargestSprite = 16384;

/// "LZ5", "RLE8", "PNG", "PCX", "GIF"; empty for `None`. And back, without regard to case.
QString codecName(PixelCodec codec);
PixelCodec codecByName(const QString& name);

/// Unpacks a stream: the rows from the top without padding. Empty if it is broken, or declares
/// more than its bytes can hold. Any thread.
QByteArray unpackPixels(const PixelFormat& format, const QByteArray& stream);

/// Reads an image file of a codec that is one (PNG, PCX, the first frame of GIF), in one of the
/// forms of sprites. Null if it is broken, too large for a sprite, or declares more than its bytes
/// can hold. Any thread.
QImage readImageFile(PixelCodec codec, const QByteArray& file);

/// Packs rows. Empty if the codec would lose something, as LZ5 an index of 32 and more, or has no
/// place for the form. Any thread.
QByteArray packPixels(const PixelFormat& format, const QByteArray& rows);

/// The codec that takes the fewest bytes among those that lose nothing, with the stream.
PixelCodec smallestCodec(const PixelFormat& format, const QByteArray& rows, QByteArray* stream);

/// An image in one of the two forms of sprites, `Format_Indexed8` or `Format_ARGB32`: indices and
/// shades of grey stay indices, all else becomes true colour.
QImage normalizedImage(const QImage& image);

/// Rows as an image, and back. An image of 8 bits has the colours given; that of 32 is
/// `Format_ARGB32`.
QImage imageOfRows(const PixelFormat& format, const QByteArray& rows, const QVector<QRgb>& colors);
QByteArray rowsOfImage(const QImage& image);

}  // namespace Family
