#pragma once

#include <QImage>
#include <QSize>

#include <type_traits>

namespace Zorv {

/// The largest width and height of an image created by the tools.
constexpr int MaxImageSide = 32767;

/// Access to the pixels of an image by row; the image must outlive it. `Pixel` is `quint8` for an
/// indexed image and `quint32` for others, const for reading.
template <class Pixel>
struct Raster
{
    explicit Raster(const QImage& image)
        : width(image.width()), height(image.height()), stride(image.bytesPerLine()),
          bits(reinterpret_cast<Pixel*>(image.constBits()))
    {
    }
    explicit Raster(QImage& image)
        : width(image.width()), height(image.height()), stride(image.bytesPerLine()),
          bits(reinterpret_cast<Pixel*>(image.bits()))
    {
    }

    Pixel* row(int y) const
    {
        using Byte = std::conditional_t<std::is_const_v<Pixel>, const uchar, uchar>;
        return reinterpret_cast<Pixel*>(reinterpret_cast<Byte*>(bits) + y * stride);
    }

    int width;
    int height;
    qsizetype stride;
    Pixel* bits;
};

/// The image in one of the three formats that the tools work on: `Format_Indexed8`, `Format_RGB32`
/// or `Format_ARGB32`.
QImage workingImage(const QImage& image);

/// A pixel of `Format_RGB32` with 255 in its unused byte.
inline quint32 comparableOpaque(quint32 pixel)
{
    return pixel | 0xFF000000U;
}

/// A pixel of `Format_ARGB32`; a fully transparent one loses its colour.
inline quint32 comparableClear(quint32 pixel)
{
    return pixel < 0x01000000U ? 0 : pixel;
}

/// A working image in which pixels that look the same have the same value.
QImage comparableImage(const QImage& image);

/// Whether both sides are from 1 to `MaxImageSide`.
inline bool isPossibleSize(const QSize& size)
{
    return size.width() >= 1 && size.height() >= 1 && size.width() <= MaxImageSide &&
           size.height() <= MaxImageSide;
}

inline bool isIndexed(const QImage& image)
{
    return image.format() == QImage::Format_Indexed8;
}

/// An image with the format, colour table and resolution of a working image; its pixels are
/// uninitialised. Null if the size is not possible or memory is short.
QImage imageLike(const QImage& model, const QSize& size);

/// Calls `function` with rasters of two working images of the same format.
template <class Function>
void withRasters(const QImage& from, QImage& to, Function function)
{
    if (isIndexed(from)) {
        function(Raster<const quint8>(from), Raster<quint8>(to));
    } else {
        function(Raster<const quint32>(from), Raster<quint32>(to));
    }
}

}  // namespace Zorv
