#pragma once

#include "zorv_export.h"

#include <QMap>
#include <QPoint>
#include <QtGlobal>

#include <functional>
#include <vector>

class QImage;
class QRect;

namespace Zorv {

class BrushLine;
class ImagePalette;
class ImageSelection;
class PixelMarks;

/// Writes pixels into an image in one of the two forms of a canvas, as far as the selection lets
/// it. What lies outside of image or mask, whatever their sizes, is left out.
///
/// Palette, selection and image belong to others and outlive the painter's use of them. A painter
/// neither records nor signals by itself: `setAnnounce()` is for who does. Main thread only.
class ZORV_EXPORT ImagePainter
{
public:
    /// Is asked in front of a write with a rectangle of the image; nothing outside of it is
    /// written until the next call. With false nothing is written.
    using Announce = std::function<bool(const QRect&)>;

    /// Neither may be null.
    ImagePainter(ImagePalette* palette, ImageSelection* selection);
    virtual ~ImagePainter();

    /// What is painted from now on: an index of the palette.
    virtual void setColor(unsigned char index) = 0;

    /// The index of a pixel; 0 outside of the image.
    virtual unsigned char color(const QPoint& point) const = 0;

    /// A square of `width()`, its top left pixel at `point`.
    virtual void point(const QPoint& point);

    /// What a `point()` at each step of a line covers, both ends included. Each pixel is painted
    /// once, so a remap does not meet its own results.
    virtual void line(const QPoint& from, const QPoint& to);

    /// Fills the selected pixels that hang together with `point` and are as it is. Nothing if it
    /// has the colour already, is not selected, or lies outside. A remap decides what all of them
    /// become; one without an entry for them gives the index 0.
    virtual void floodFill(const QPoint& point);

    /// Whether a pixel may be painted: with a remap, if its index is one that has another.
    virtual bool canDraw(int x, int y) const = 0;

    /// A pixel as it is stored: an index or a `QRgb`. 0 outside of the image.
    virtual quint32 pixel(int x, int y) const = 0;

    /// Writes one pixel, whether or not it is selected. Not announced.
    virtual void setPixel(int x, int y) = 0;

    /// The side of the square that is painted with, in pixels; at least 1.
    int width() const;
    void setWidth(int width);

    /// The image that is painted into; null for none.
    QImage* image() const;
    void setImage(QImage* image);

    /// From now on only pixels of the index `from` are painted, with `to`; each call adds a pair.
    void setRemap(unsigned char from, unsigned char to);

    /// Paints all pixels again.
    void clearRemap();

    /// Pixels that a remap passes over; those that it meets are added. So a stroke of many points
    /// and lines maps each pixel once. The caller's, who gives null when the stroke ends.
    void setMarks(PixelMarks* marks);

    void setAnnounce(const Announce& announce);

protected:
    /// The first and the last pixel of a row; none if they are in the other order.
    struct Run
    {
        int left;
        int right;
    };

    /// Paints the pixels that the selection allows and `canDraw()` agrees to of a run in each row
    /// from `top` down. All lie in image and mask.
    virtual void paintRuns(int top, const std::vector<Run>& runs);

    /// Whether the mask has nothing to say within itself.
    bool paintsAll() const;

    /// Whether a remap may meet a pixel, which it does only once a stroke.
    bool meets(int x, int y);

    QMap<unsigned char, unsigned char> m_remap;
    ImagePalette* m_palette;
    QImage* m_image = nullptr;
    quint32 m_color = 255;
    ImageSelection* m_selection;
    int m_width = 1;

private:
    QRect paintable() const;
    bool announce(const QRect& rect) const;
    quint32 rawPixel(const QPoint& point) const;
    quint32 fillValue(const QPoint& point);
    bool paintPiece(const BrushLine& brush, const QRect& piece);

    PixelMarks* m_marks = nullptr;
    std::vector<Run> m_runs;  ///< of the last piece, kept for their memory
    Announce m_announce;
};

}  // namespace Zorv
