#pragma once

#include <QPoint>
#include <QRect>

namespace Zorv {

/// The area that a square brush covers when it moves along a line, as one run of pixels per row.
///
/// The line is Bresenham's: it steps along the longer axis, and sideways when an error that starts
/// at half the longer span exceeds that span. The brush's top left pixel is on the line.
class BrushLine
{
public:
    BrushLine(const QPoint& from, const QPoint& to, int width);

    /// The bounding rectangle.
    QRect rect() const;

    /// Calls `paint(y, left, right)`, with the first and the last pixel of the row, for the rows
    /// `top` to `bottom`, which are within `rect()`.
    template <class Paint>
    void forRows(int top, int bottom, Paint paint) const;

private:
    /// Computes floor((start + i * step) / unit) for i = 0, 1, 2, ... without a division each time.
    class Slope
    {
    public:
        Slope(qint64 start, qint64 step, qint64 unit);
        qint64 value() const { return m_value; }
        void advance()
        {
            m_value += m_whole;
            m_rest += m_part;
            if (m_rest >= m_unit) {
                m_rest -= m_unit;
                ++m_value;
            }
        }

    private:
        qint64 m_unit;
        qint64 m_value;
        qint64 m_rest;
        qint64 m_whole;
        qint64 m_part;
    };

    Slope firstColumns(qint64 row) const;
    Slope lastColumns(qint64 row) const;

    QPoint m_from;
    QPoint m_to;
    int m_width;
    qint64 m_across;  ///< both spans are absolute values
    qint64 m_down;
};

template <class Paint>
void BrushLine::forRows(int top, int bottom, Paint paint) const
{
    // Rows are counted along the line, from its start. The brush hangs down from the line, so an
    // image row is covered by the brushes of the line's rows `first` to `last`. Both only increase
    // when rows are visited in the direction of the line.
    const bool isUp = m_to.y() < m_from.y();
    const bool isLeft = m_to.x() < m_from.x();
    const int step = isUp ? -1 : 1;
    const int start = isUp ? bottom : top;
    const int count = bottom - top + 1;
    qint64 first = qint64(start - m_from.y()) * step - (isUp ? 0 : m_width - 1);
    qint64 last = first + m_width - 1;
    Slope begins = firstColumns(qMax(first, qint64(0)));
    Slope ends = lastColumns(qMin(last, m_down));
    for (int i = 0; i < count; ++i, ++first, ++last) {
        const qint64 near = qMax(begins.value(), qint64(0));
        const qint64 far = qMin(ends.value(), m_across);
        const qint64 left = isLeft ? m_from.x() - far : m_from.x() + near;
        const qint64 right = isLeft ? m_from.x() - near : m_from.x() + far;
        paint(start + i * step, int(left), int(right + m_width - 1));
        if (first >= 0) {
            begins.advance();
        }
        if (last < m_down) {
            ends.advance();
        }
    }
}

}  // namespace Zorv
