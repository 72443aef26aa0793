#include "image/canvas/imagepainter.h"

#include "image/canvas/brushline_p.h"
#include "image/canvas/floodregion_p.h"
#include "image/canvas/imageselection.h"
#include "image/canvas/pixelmarks.h"

#include <QImage>

#include <algorithm>

namespace Zorv {

namespace {

// Long lines are announced in pieces of this many rows: the rectangle around a whole line would
// cover most of the image.
const int AnnouncedRows = 64;

}  // namespace

ImagePainter::ImagePainter(ImagePalette* palette, ImageSelection* selection)
    : m_palette(palette), m_selection(selection)
{
}

ImagePainter::~ImagePainter() = default;

void ImagePainter::point(const QPoint& point)
{
    const QRect square = BrushLine(point, point, m_width).rect() & paintable();
    if (square.isEmpty() || !announce(square)) {
        return;
    }
    m_runs.assign(std::size_t(square.height()), {square.left(), square.right()});
    paintRuns(square.top(), m_runs);
}

void ImagePainter::line(const QPoint& from, const QPoint& to)
{
    const BrushLine brush(from, to, m_width);
    const QRect area = brush.rect() & paintable();
    for (int top = area.top(); top <= area.bottom(); top += AnnouncedRows) {
        const int height = std::min(AnnouncedRows, area.bottom() - top + 1);
        if (!paintPiece(brush, {area.left(), top, area.width(), height})) {
            return;
        }
    }
}

/// Paints some rows of a line. Returns false if the announcement is refused.
bool ImagePainter::paintPiece(const BrushLine& brush, const QRect& piece)
{
    m_runs.resize(std::size_t(piece.height()));
    int left = piece.right() + 1;
    int right = piece.left() - 1;
    brush.forRows(piece.top(), piece.bottom(), [&](int y, int first, int last) {
        const Run run = {std::max(first, piece.left()), std::min(last, piece.right())};
        m_runs[std::size_t(y - piece.top())] = run;
        left = std::min(left, run.left);
        right = std::max(right, run.right);
    });
    if (left > right) {
        return true;
    }
    if (!announce({QPoint(left, piece.top()), QPoint(right, piece.bottom())})) {
        return false;
    }
    paintRuns(piece.top(), m_runs);
    return true;
}

void ImagePainter::floodFill(const QPoint& point)
{
    if (!paintable().contains(point) || pixel(point.x(), point.y()) == m_color) {
        return;
    }
    const quint32 value = fillValue(point);
    if (value == rawPixel(point)) {
        return;
    }
    const bool isMasked = !paintsAll();
    const FloodRegion region(*m_image, paintable().size(),
                             isMasked ? &m_selection->mask() : nullptr, point);
    for (const QRect& piece : region.pieces()) {
        if (!announce(piece)) {
            return;
        }
    }
    region.paint(*m_image, value);
}

/// The value that `setPixel()` gives a pixel. All pixels of a fill are equal, so one is enough.
quint32 ImagePainter::fillValue(const QPoint& point)
{
    QImage* image = m_image;
    QImage copy = image->copy(QRect(point, QSize(1, 1)));
    m_image = &copy;
    setPixel(0, 0);
    const quint32 value = rawPixel(QPoint());
    m_image = image;
    return value;
}

/// A pixel of 8 or 32 bits, whatever the format.
quint32 ImagePainter::rawPixel(const QPoint& point) const
{
    const uchar* row = m_image->constScanLine(point.y());
    return m_image->depth() == 8 ? row[point.x()]
                                 : reinterpret_cast<const quint32*>(row)[point.x()];
}

/// The area inside both image and mask. Empty for an image of another depth.
QRect ImagePainter::paintable() const
{
    const bool isUsable = m_image && (m_image->depth() == 8 || m_image->depth() == 32);
    return isUsable ? m_image->rect() & m_selection->mask().rect() : QRect();
}

bool ImagePainter::announce(const QRect& rect) const
{
    return !m_announce || m_announce(rect);
}

void ImagePainter::paintRuns(int top, const std::vector<Run>& runs)
{
    int y = top;
    for (const Run& run : runs) {
        for (int x = run.left; x <= run.right; ++x) {
            if (m_selection->clipQuery(x, y) && canDraw(x, y) && meets(x, y)) {
                setPixel(x, y);
            }
        }
        ++y;
    }
}

bool ImagePainter::paintsAll() const
{
    return !m_selection->queriesEnabled() || m_selection->isAll();
}

bool ImagePainter::meets(int x, int y)
{
    return !m_marks || m_remap.isEmpty() || m_marks->mark({x, y});
}

int ImagePainter::width() const
{
    return m_width;
}

void ImagePainter::setWidth(int width)
{
    m_width = std::max(width, 1);
}

QImage* ImagePainter::image() const
{
    return m_image;
}

void ImagePainter::setImage(QImage* image)
{
    m_image = image;
}

void ImagePainter::setRemap(unsigned char from, unsigned char to)
{
    m_remap.insert(from, to);
}

void ImagePainter::clearRemap()
{
    m_remap.clear();
}

void ImagePainter::setMarks(PixelMarks* marks)
{
    m_marks = marks;
}

void ImagePainter::setAnnounce(const Announce& announce)
{
    m_announce = announce;
}

}  // namespace Zorv
