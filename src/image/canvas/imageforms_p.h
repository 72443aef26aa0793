#pragma once

#include "image/canvas/imagecanvas.h"

#include <QRgb>
#include <QVector>

#include <array>
#include <vector>

namespace Zorv {

/// The colours of a palette while it does not change, and the entries of many colours.
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
    std::vector<Found> m_found;  ///< of the last colours that were asked for
};

/// The form of the layers of a canvas.
QImage::Format imageFormat(ImageCanvas::Format format);

/// An image in one of the two forms; one that is neither null nor indexed becomes true.
QImage layerImage(const QImage& image);

/// An indexed image with another colour table, on the same pixels, which outlive it and stay as
/// they are.
QImage indexedView(const QImage& image, const QVector<QRgb>& table);

/// The colours of an indexed image; null if memory is short.
QImage toColors(const QImage& indexed, const ImagePalette& palette);

/// The entries of a true-colour image; null if memory is short.
QImage toIndices(const QImage& colors, const ImagePalette& palette);

/// An image of another size, with this one at `position` and `fill` around; null if memory is
/// short. Colour tables are not kept.
QImage placed(const QImage& image, const QSize& size, const QPoint& position, quint32 fill);

/// A new image with all bytes 0, null if memory is short.
QImage emptyImage(const QSize& size, QImage::Format format);

/// Whether both have the same form, size and pixels.
bool samePixels(const QImage& x, const QImage& y);

/// Whether so many bytes can be had without the machine coming to a stand.
bool isMemoryFor(qint64 bytes);

}  // namespace Zorv
