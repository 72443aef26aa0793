#pragma once

#include "image/canvas/pixelmarks.h"
#include "image/tools/straightline_p.h"
#include "image/tools/strokeoptions.h"

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>

#include <optional>
#include <vector>

namespace Zorv {

class ImagePainter;

/// Paints the points and lines of one stroke with the options: mirrored, and without corners.
class StrokeBrush
{
public:
    void setOptions(StrokeOptions* options) { m_options = options; }
    StrokeOptions* options() const { return m_options; }

    /// Begins a new stroke on an image of this size.
    void begin(const QSize& size);

    void point(ImagePainter* painter, const QPoint& point);
    void line(ImagePainter* painter, const QPoint& from, const QPoint& to);
    void line(ImagePainter* painter, const StraightLine& line);

    /// The pixels that a remap has already changed in this stroke.
    PixelMarks& marks() { return m_marks; }

    /// The rectangle restored to old colours since the last call.
    QRect takeRestored();

private:
    struct Pixel
    {
        QPoint place;
        quint32 before;
    };
    /// One point of a stroke one pixel wide, with the old pixels on all sides of the axes.
    struct Dot
    {
        QPoint place;
        std::vector<Pixel> pixels;
    };

    bool avoidsCorners(const ImagePainter& painter) const;
    std::vector<QPoint> copiesOf(const QPoint& point, int width) const;
    void addDot(ImagePainter* painter, const QPoint& point);
    void restore(ImagePainter* painter, const Dot& dot);

    QPointer<StrokeOptions> m_options;
    QSize m_size;
    PixelMarks m_marks;
    std::optional<QPoint> m_beforeLast;
    std::optional<Dot> m_last;
    QRect m_restored;
};

}  // namespace Zorv
