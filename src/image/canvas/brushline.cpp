#include "image/canvas/brushline_p.h"

#include <algorithm>
#include <cstdlib>

// After k steps along the longer axis the line is floor((longer / 2 + k * shorter) / longer) steps
// aside. With this formula the rows of the image can be visited instead of the steps of the line:
// each row is written once, however many brush squares cover it, and rows outside the image cost
// nothing.

namespace Zorv {

namespace {

// Small enough that a product of two spans fits into 64 bits.
const int Farthest = 1 << 28;

QPoint reachable(const QPoint& point)
{
    return {qBound(-Farthest, point.x(), Farthest), qBound(-Farthest, point.y(), Farthest)};
}

qint64 flooredQuotient(qint64 value, qint64 unit)
{
    return value >= 0 ? value / unit : -((-value + unit - 1) / unit);
}

}  // namespace

BrushLine::Slope::Slope(qint64 start, qint64 step, qint64 unit)
    : m_unit(unit), m_value(flooredQuotient(start, unit)), m_rest(start - m_value * unit),
      m_whole(step / unit), m_part(step % unit)
{
}

BrushLine::BrushLine(const QPoint& from, const QPoint& to, int width)
    : m_from(reachable(from)), m_to(reachable(to)), m_width(qBound(1, width, Farthest)),
      m_across(std::abs(m_to.x() - m_from.x())), m_down(std::abs(m_to.y() - m_from.y()))
{
}

QRect BrushLine::rect() const
{
    const QPoint corner(std::min(m_from.x(), m_to.x()), std::min(m_from.y(), m_to.y()));
    return {corner, QSize(int(m_across) + m_width, int(m_down) + m_width)};
}

/// The column at which the line enters a row, counted from the start of the line.
BrushLine::Slope BrushLine::firstColumns(qint64 row) const
{
    if (m_across >= m_down) {
        // A horizontal line has only one row, entered at its start.
        const qint64 unit = std::max(m_down, qint64(1));
        return {row * m_across - m_across / 2 + unit - 1, m_across, unit};
    }
    return {m_down / 2 + row * m_across, m_across, m_down};
}

/// The column at which the line leaves a row.
BrushLine::Slope BrushLine::lastColumns(qint64 row) const
{
    if (m_across >= m_down) {
        if (m_down == 0) {
            return {m_across, 0, 1};
        }
        return {(row + 1) * m_across - m_across / 2 - 1, m_across, m_down};
    }
    return firstColumns(row);
}

}  // namespace Zorv
