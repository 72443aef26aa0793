#pragma once

#include "zorv_export.h"

#include <QMap>
#include <QPoint>
#include <QtGlobal>

class QImage;

namespace Zorv {

class ImagePalette;
class ImageSelection;

/// Writes pixels into an image in one of the two forms of a canvas, as far as the selection lets
/// it. What lies outside of image or mask, whatever their sizes, is left out.
///
/// Palette, selection and image belong to others and outlive the painter's use of them. A painter
/// neither records nor signals: see `ImageCanvas::beginStroke()`. Main thread only.
class ZORV_EXPORT ImagePainter
{
public:
    /// Neither may be null.
    ImagePainter(ImagePalette* palette, ImageSelection* selection);
    virtual ~ImagePainter();

    /// What is painted from now on: an index of the palette.
    virtual void setColor(unsigned char index) = 0;

    /// The index of a pixel; 0 outside of the image.
    virtual unsigned char color(const QPoint& point) const = 0;

    /// A square of `width()`, its top left pixel at `point`.
    virtual void point(const QPoint& point);

    /// A `point()` at each step of a line, both ends included.
    virtual void line(const QPoint& from, const QPoint& to);

    /// Fills the selected pixels that hang together with `point` and are as it is. Nothing if it
    /// has the colour already, is not selected, or lies outside.
    virtual void floodFill(const QPoint& point);

    /// Whether a pixel may be painted: with a remap, if its index is one that has another.
    virtual bool canDraw(int x, int y) const = 0;

    /// A pixel as it is stored: an index or a `QRgb`. 0 outside of the image.
    virtual quint32 pixel(int x, int y) const = 0;

    /// Writes one pixel, whether or not it is selected.
    virtual void setPixel(int x, int y) = 0;

    /// The side of the square that is painted with, in pixels.
    int width() const;
    void setWidth(int width);

    /// The image that is painted into; null for none.
    QImage* image() const;
    void setImage(QImage* image);

    /// From now on only pixels of the index `from` are painted, with `to`; each call adds a pair.
    void setRemap(unsigned char from, unsigned char to);

    /// Paints all pixels again.
    void clearRemap();

protected:
    QMap<unsigned char, unsigned char> m_remap;
    ImagePalette* m_palette;
    QImage* m_image = nullptr;
    quint32 m_color = 255;
    ImageSelection* m_selection;
    int m_width = 1;
};

}  // namespace Zorv
