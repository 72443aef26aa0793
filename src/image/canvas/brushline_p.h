#pragma once

#include <QPoint>
#include <QRect>

namespace Zorv {

/// What a square brush covers that is moved along a line, a run of pixels a row.
///
/// The line is Bresenham's: it steps along the longer axis, and aside when an error that starts at
/// half the longer span passes it. The brush has its top left pixel on the line.
class BrushLine
{
public:
    BrushLine(const QPoint& from, const QPoint& to, int width);

    /// Around all of it.
    QRect rect() const;

    /// Calls `paint(y, left, right)`, with the first and the last pixel of a row, for the rows from
    /// `top` to `bottom`, which lie within `rect()`.
    template <class Paint>
    void forRows(int top, int bottom, Paint paint) const;

private:
    /// The numbers floor((start + i * step) / unit) for a growing i.
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
    qint64 m_across;  ///< the spans, without sign
    qint64 m_down;
};

template <class Paint>
void BrushLine::forRows(int top, int bottom, Paint paint) const
{
    // Rows of the line are counted from its start, which may be below. The brush hangs down from
    // the line, so that a row sees the line's rows from `first` to `last`. Both only move forward
    // when rows are walked in the direction of the line.
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
