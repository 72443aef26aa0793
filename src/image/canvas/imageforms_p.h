#pragma once

#include "image/canvas/imagecanvas.h"

#include <QRgb>
#include <QVector>

#include <array>
#include <vector>

namespace Zorv {

/// A snapshot of a palette's colours, with a cache for finding the nearest entry.
class PaletteColors
{
public:
    explicit PaletteColors(const ImagePalette& palette);

    QRgb operator[](quint8 index) const { return m_colors[index]; }
    const std::array<QRgb, 256>& colors() const { return m_colors; }

    /// The first transparent entry; -1 without one.
    int transparent() const { return m_transparent; }

    /// `ImagePalette::index()`.
    quint8 nearest(QRgb color);

private:
    struct Found
    {
        QRgb color = 0;
        int index = -1;
    };

    const ImagePalette& m_palette;
    std::array<QRgb, 256> m_colors;
    int m_transparent = -1;
    std::vector<Found> m_found;  ///< a cache of recent searches, by hash
};

/// The image format of the layers of a canvas.
QImage::Format imageFormat(ImageCanvas::Format format);

/// The image in one of the two formats; one that is neither null nor indexed becomes true colour.
QImage layerImage(const QImage& image);

/// An indexed image with another colour table that shares the pixels, which must outlive it and not
/// change.
QImage indexedView(const QImage& image, const QVector<QRgb>& table);

/// Converts indices to colours; null if memory is short.
QImage toColors(const QImage& indexed, const ImagePalette& palette);

/// Converts colours to indices; null if memory is short.
QImage toIndices(const QImage& colors, const ImagePalette& palette);

/// An image of another size with this one at `position` and `fill` around it; null if memory is
/// short. Colour tables are dropped.
QImage placed(const QImage& image, const QSize& size, const QPoint& position, quint32 fill);

/// A new image with all bytes 0, null if memory is short.
QImage emptyImage(const QSize& size, QImage::Format format);

/// Whether both have the same format, size and pixels.
bool samePixels(const QImage& x, const QImage& y);

/// Whether so many bytes can be allocated without the machine running out of memory.
bool isMemoryFor(qint64 bytes);

}  // namespace Zorv
