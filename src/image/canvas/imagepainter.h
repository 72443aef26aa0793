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

/// Writes pixels into an image in one of the two canvas formats, where the selection allows it.
/// Pixels outside the image or the mask are skipped, whatever their sizes.
///
/// Palette, selection and image are not owned and must outlive the painter's use of them. A painter
/// neither records nor signals; a caller that does uses `setAnnounce()`. Main thread only.
class ZORV_EXPORT ImagePainter
{
public:
    /// Called before a write, with a rectangle of the image; nothing outside it is written until
    /// the next call. If it returns false, nothing is written.
    using Announce = std::function<bool(const QRect&)>;

    /// Neither may be null.
    ImagePainter(ImagePalette* palette, ImageSelection* selection);
    virtual ~ImagePainter();

    /// The colour to paint with: an index of the palette.
    virtual void setColor(unsigned char index) = 0;

    /// The index of a pixel; 0 outside of the image.
    virtual unsigned char color(const QPoint& point) const = 0;

    /// Paints a square of side `width()`, its top left pixel at `point`.
    virtual void point(const QPoint& point);

    /// Paints what `point()` at each step of a line would cover, both ends included. Each pixel is
    /// painted once, so a remap does not change its own results again.
    virtual void line(const QPoint& from, const QPoint& to);

    /// Fills the selected pixels that are connected to `point` and equal to it. Does nothing if the
    /// pixel already has the colour, is not selected, or is outside. With a remap all pixels get
    /// what it maps them to, or the index 0 if it has no entry for them.
    virtual void floodFill(const QPoint& point);

    /// Whether a pixel may be painted; with a remap, whether the remap contains its index.
    virtual bool canDraw(int x, int y) const = 0;

    /// A pixel as stored: an index or a `QRgb`. 0 outside the image.
    virtual quint32 pixel(int x, int y) const = 0;

    /// Writes one pixel, selected or not. Not announced.
    virtual void setPixel(int x, int y) = 0;

    /// The side of the brush square, in pixels; at least 1.
    int width() const;
    void setWidth(int width);

    /// The image to paint into; null for none.
    QImage* image() const;
    void setImage(QImage* image);

    /// From now on only pixels with the index `from` are painted, with `to`. Each call adds a pair.
    void setRemap(unsigned char from, unsigned char to);

    /// Removes the remap: all pixels are painted again.
    void clearRemap();

    /// The pixels that a remap has changed already: it skips them, and marks each one it changes.
    /// So a stroke of many points and lines maps each pixel once. Owned by the caller, who sets
    /// null when the stroke ends.
    void setMarks(PixelMarks* marks);

    void setAnnounce(const Announce& announce);

protected:
    /// The first and the last pixel of a row; empty if `left` is greater than `right`.
    struct Run
    {
        int left;
        int right;
    };

    /// Paints one run per row, from row `top` down: the pixels that are selected and for which
    /// `canDraw()` is true. All runs are within image and mask.
    virtual void paintRuns(int top, const std::vector<Run>& runs);

    /// Whether every pixel within the mask may be painted.
    bool paintsAll() const;

    /// Whether a remap may change a pixel; it may do so only once per stroke.
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
    std::vector<Run> m_runs;  ///< of the last piece, a member to reuse its memory
    Announce m_announce;
};

}  // namespace Zorv
