#include "image/tools/strokebrush_p.h"

#include "image/canvas/imagepainter.h"

#include <QImage>
#include <QtMath>

#include <algorithm>
#include <cstdlib>

// Pixel-perfect strokes: a corner is a pixel between two others that touch each other diagonally.
// It is recognised only when the pixel after it arrives. So each dot is painted at once with its
// old pixels remembered, and restored when the next dot shows that it was a corner.
//
// Symmetry: each dot and line is painted once per copy, mirrored at the axes.

namespace Zorv {

namespace {

// Longer lines are painted whole, not walked pixel by pixel: nobody draws corners over such a
// distance.
const int LongestChain = 1 << 16;

/// A pixel of 8 or 32 bits.
quint32 pixelOf(const QImage& image, const QPoint& place)
{
    const uchar* row = image.constScanLine(place.y());
    return image.depth() == 8 ? row[place.x()] : reinterpret_cast<const quint32*>(row)[place.x()];
}

void setPixel(QImage* image, const QPoint& place, quint32 value)
{
    uchar* row = image->scanLine(place.y());
    if (image->depth() == 8) {
        row[place.x()] = uchar(value);
    } else {
        reinterpret_cast<quint32*>(row)[place.x()] = value;
    }
}

int farther(const QPoint& a, const QPoint& b)
{
    return std::max(std::abs(a.x() - b.x()), std::abs(a.y() - b.y()));
}

bool isCorner(const QPoint& before, const QPoint& at, const QPoint& after)
{
    const QPoint across = after - before;
    return std::abs(across.x()) == 1 && std::abs(across.y()) == 1 &&
           (at - before).manhattanLength() == 1 && (after - at).manhattanLength() == 1;
}

}  // namespace

void StrokeBrush::begin(const QSize& size)
{
    m_size = size;
    m_marks = PixelMarks(size);
    m_beforeLast.reset();
    m_last.reset();
    m_restored = QRect();
}

bool StrokeBrush::avoidsCorners(const ImagePainter& painter) const
{
    return m_options && m_options->isPixelPerfect() && painter.width() == 1;
}

/// The top left corner of the brush and its mirrored copies, the original first.
std::vector<QPoint> StrokeBrush::copiesOf(const QPoint& point, int width) const
{
    std::vector<QPoint> copies = {point};
    if (!m_options) {
        return copies;
    }
    const QPointF axis = m_options->symmetryAxis(m_size) * 2;
    const QPoint mirrored(qRound(axis.x()) - point.x() - width,
                          qRound(axis.y()) - point.y() - width);
    const StrokeOptions::Symmetry symmetry = m_options->symmetry();
    if (symmetry & StrokeOptions::LeftRight) {
        copies.emplace_back(mirrored.x(), point.y());
    }
    if (symmetry & StrokeOptions::TopBottom) {
        copies.emplace_back(point.x(), mirrored.y());
    }
    if ((symmetry & StrokeOptions::LeftRight) && (symmetry & StrokeOptions::TopBottom)) {
        copies.push_back(mirrored);
    }
    return copies;
}

void StrokeBrush::point(ImagePainter* painter, const QPoint& point)
{
    if (avoidsCorners(*painter)) {
        addDot(painter, point);
        return;
    }
    for (const QPoint& copy : copiesOf(point, painter->width())) {
        painter->point(copy);
    }
}

void StrokeBrush::line(ImagePainter* painter, const QPoint& from, const QPoint& to)
{
    const int distance = farther(from, to);
    if (!avoidsCorners(*painter) || distance > LongestChain) {
        m_last.reset();
        const std::vector<QPoint> starts = copiesOf(from, painter->width());
        const std::vector<QPoint> ends = copiesOf(to, painter->width());
        for (std::size_t i = 0; i < starts.size(); ++i) {
            painter->line(starts[i], ends[i]);
        }
        return;
    }
    // Takes the same steps as the painter's line.
    const QPoint span = to - from;
    const auto part = [distance](int whole, int step) {
        return (whole < 0 ? -1 : 1) *
               ((distance / 2 + qint64(step) * std::abs(whole)) / std::max(distance, 1));
    };
    for (int step = 0; step <= distance; ++step) {
        addDot(painter, from + QPoint(int(part(span.x(), step)), int(part(span.y(), step))));
    }
}

void StrokeBrush::line(ImagePainter* painter, const StraightLine& line)
{
    m_last.reset();
    for (int run = 0; run < line.runs; ++run) {
        const std::vector<QPoint> starts = copiesOf(line.runStart(run), painter->width());
        const std::vector<QPoint> ends = copiesOf(line.runEnd(run), painter->width());
        for (std::size_t i = 0; i < starts.size(); ++i) {
            painter->line(starts[i], ends[i]);
        }
    }
}

void StrokeBrush::addDot(ImagePainter* painter, const QPoint& point)
{
    if (m_last && m_last->place == point) {
        return;
    }
    if (m_last && m_beforeLast && isCorner(*m_beforeLast, m_last->place, point)) {
        restore(painter, *m_last);
    } else {
        m_beforeLast.reset();
        if (m_last) {
            m_beforeLast = m_last->place;
        }
    }
    Dot dot = {point, {}};
    for (const QPoint& copy : copiesOf(point, 1)) {
        if (painter->image() && painter->image()->rect().contains(copy)) {
            dot.pixels.push_back({copy, pixelOf(*painter->image(), copy)});
        }
        painter->point(copy);
    }
    m_last = dot;
}

void StrokeBrush::restore(ImagePainter* painter, const Dot& dot)
{
    QImage* image = painter->image();
    // In reverse order: on an axis two copies are the same pixel, and the first one saved is the
    // oldest.
    for (auto pixel = dot.pixels.rbegin(); pixel != dot.pixels.rend(); ++pixel) {
        if (image && image->rect().contains(pixel->place) &&
            pixelOf(*image, pixel->place) != pixel->before) {
            setPixel(image, pixel->place, pixel->before);
            m_marks.unmark(pixel->place);
            m_restored |= QRect(pixel->place, QSize(1, 1));
        }
    }
}

QRect StrokeBrush::takeRestored()
{
    const QRect restored = m_restored;
    m_restored = QRect();
    return restored;
}

}  // namespace Zorv
