#include "editors/palette/palettecell_p.h"

#include <QPaintDevice>
#include <QPainter>
#include <QRect>

#include <algorithm>

namespace Zorv {

namespace {

const QColor Gray(128, 128, 128);

/// Four bars along the inner border of a rectangle.
void fillFrame(QPainter* painter, const QRect& rect, int width, const QColor& leftTop,
               const QColor& rightBottom)
{
    painter->fillRect(rect.x(), rect.y(), rect.width(), width, leftTop);
    painter->fillRect(rect.x(), rect.y(), width, rect.height(), leftTop);
    painter->fillRect(rect.x(), rect.bottom() + 1 - width, rect.width(), width, rightBottom);
    painter->fillRect(rect.right() + 1 - width, rect.y(), width, rect.height(), rightBottom);
}

}  // namespace

CellPainter::CellPainter(QPainter* painter)
    : m_painter(painter), m_ratio(painter->device()->devicePixelRatioF()),
      m_line(std::max(int(m_ratio), 1))
{
    m_painter->save();
    m_painter->setRenderHint(QPainter::Antialiasing, false);
    m_painter->scale(1 / m_ratio, 1 / m_ratio);
}

CellPainter::~CellPainter()
{
    m_painter->restore();
}

// Round the edges, not the sizes: adjacent cells then share an edge.
QRect CellPainter::devicePixels(const QRect& rect) const
{
    const QPoint from(qRound(rect.x() * m_ratio), qRound(rect.y() * m_ratio));
    const QPoint to(qRound((rect.x() + rect.width()) * m_ratio),
                    qRound((rect.y() + rect.height()) * m_ratio));
    return {from.x(), from.y(), to.x() - from.x(), to.y() - from.y()};
}

void CellPainter::paintColor(const QRect& cell, RGBA color, CellMarks marks)
{
    const QRect pixels = devicePixels(cell);
    const int square = std::max(pixels.width() / 2, 1);
    if (marks & CellMark::Selected) {
        fillColor(pixels, color, square, pixels);
    } else {
        paintEdges(pixels);
        fillColor(pixels.adjusted(m_line, m_line, -m_line, -m_line), color, square, pixels);
    }
    paintMarks(pixels, marks);
}

void CellPainter::paintEmpty(const QRect& cell, CellMarks marks)
{
    const QRect pixels = devicePixels(cell);
    paintEdges(pixels);
    const int dot = 2 * m_line;
    const QPoint corner =
        pixels.topLeft() + QPoint((pixels.width() - dot) / 2, (pixels.height() - dot) / 2);
    m_painter->fillRect(QRect(corner, QSize(dot, dot)), Gray);
    paintMarks(pixels, marks);
}

void CellPainter::paintWell(const QRect& well, RGBA color, int square)
{
    const QRect pixels = devicePixels(well);
    fillColor(pixels, color, std::max(qRound(square * m_ratio), 1), pixels);
    paintEdges(pixels);
}

/// The chequerboard starts with a gray square at the corner of `origin`.
void CellPainter::fillColor(const QRect& pixels, RGBA color, int square, const QRect& origin)
{
    if (color.a != 255) {
        paintChequer(origin, pixels, square, Gray);
    }
    m_painter->fillRect(pixels, QColor(color.r, color.g, color.b, color.a));
}

void CellPainter::paintChequer(const QRect& pixels, const QRect& exposed, int square,
                               const QColor& color)
{
    const QRect seen = pixels & exposed;
    if (seen.isEmpty()) {
        return;
    }
    m_painter->fillRect(seen, Qt::white);
    const QRect inside = seen.translated(-pixels.topLeft());
    const QPoint from(inside.left() / square, inside.top() / square);
    const QPoint to(inside.right() / square, inside.bottom() / square);
    for (int y = from.y(); y <= to.y(); ++y) {
        for (int x = from.x() + (from.x() + y) % 2; x <= to.x(); x += 2) {
            const QPoint corner = pixels.topLeft() + QPoint(x, y) * square;
            m_painter->fillRect(QRect(corner, QSize(square, square)) & seen, color);
        }
    }
}

void CellPainter::paintEdges(const QRect& pixels)
{
    fillFrame(m_painter, pixels, m_line, Gray, Qt::white);
}

void CellPainter::paintMarks(const QRect& pixels, CellMarks marks)
{
    if (marks & CellMark::Selected) {
        // Black and white: one of the two stands out from any colour.
        fillFrame(m_painter, pixels, m_line, Qt::black, Qt::black);
        fillFrame(m_painter, pixels.adjusted(m_line, m_line, -m_line, -m_line), m_line, Qt::white,
                  Qt::white);
    }
    if (marks & CellMark::Focused) {
        paintDashes(pixels);
    }
}

void CellPainter::paintDashes(const QRect& pixels)
{
    fillFrame(m_painter, pixels, m_line, Qt::white, Qt::white);
    const int dash = 2 * m_line;
    for (int i = 0; i < pixels.width(); i += 2 * dash) {
        const int length = std::min(dash, pixels.width() - i);
        m_painter->fillRect(pixels.x() + i, pixels.y(), length, m_line, Qt::black);
        m_painter->fillRect(pixels.right() + 1 - i - length, pixels.bottom() + 1 - m_line, length,
                            m_line, Qt::black);
    }
    for (int i = 0; i < pixels.height(); i += 2 * dash) {
        const int length = std::min(dash, pixels.height() - i);
        m_painter->fillRect(pixels.x(), pixels.y() + i, m_line, length, Qt::black);
        m_painter->fillRect(pixels.right() + 1 - m_line, pixels.bottom() + 1 - i - length, m_line,
                            length, Qt::black);
    }
}

}  // namespace Zorv
