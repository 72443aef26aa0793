// Paints what the mouse needs over the cells: the selection, marks where hidden cells are, and the
// preview of the current drag. All loops run over visible ticks, never over all cells.

#include "animation/timeline/cellediting_p.h"
#include "animation/timeline/timelinewidget.h"
#include "animation/timeline/timelinewidget_p.h"

#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int TickWidth = TimeLinePrivate::TickWidth;
constexpr int RowHeight = TimeLinePrivate::RowHeight;
constexpr int HalfScale = TimeLinePrivate::HeaderHeight / 2;
constexpr int NotchSize = 4;
constexpr int GapWidth = 3;
constexpr double VeilOpacity = 0.35;

/// A part of the strip as a rectangle, clipped near the page: far coordinates would not fit `int`.
QRect between(qint64 left, qint64 right, int top, int height, const QRect& page)
{
    const qint64 from = std::max<qint64>(left, page.left() - 10);
    const qint64 to = std::min<qint64>(right, page.right() + 10);
    return {int(from), top, int(std::max<qint64>(to - from, 0)), height};
}

}  // namespace

QRect CellEditing::pageRect() const
{
    const int width = m_strip->leftOf(m_strip->visibleTicks) - TimeLinePrivate::LabelWidth + 1;
    return {TimeLinePrivate::LabelWidth, 0, width, m_strip->owner->height()};
}

void CellEditing::paint(QPainter& painter) const
{
    if (!cells()) {
        return;
    }
    painter.save();
    painter.setClipRect(pageRect(), Qt::IntersectClip);
    paintCells(painter);
    paintRange(painter);
    paintResize(painter);
    paintGap(painter);
    painter.restore();
}

void CellEditing::paintCells(QPainter& painter) const
{
    const TimeLineCells* all = cells();
    const unsigned int end = m_strip->firstTick + m_strip->visibleTicks;
    unsigned int tick = m_strip->firstTick;
    int before = tick > 0 ? all->indexAt(tick - 1) : -1;
    while (tick < end) {
        const int index = all->indexAt(tick);
        const bool isLast = index < 0;
        const int next = isLast ? all->count() : index;
        if (next > before + 1) {
            paintHidden(painter, m_strip->placeOf(tick));
        }
        if (isLast) {
            return;
        }
        const TimeLineCells::Cell cell = all->at(index);
        const qint64 length = cell.length < 0 ? 1 : cell.length;
        if (m_selection.contains(index)) {
            paintSelected(painter, m_strip->placeOf(cell.firstTick), length);
        }
        if (cell.length < 0) {
            if (index + 1 < all->count()) {
                paintHidden(painter, m_strip->placeOf(qint64(cell.firstTick) + 1));
            }
            return;
        }
        before = index;
        tick = std::max(tick + 1, cell.firstTick + unsigned(length));
    }
}

void CellEditing::paintSelected(QPainter& painter, qint64 left, qint64 length) const
{
    const QColor color = m_strip->owner->palette().color(QPalette::Highlight);
    const QRect place = between(left, left + length * TickWidth, top(), RowHeight, pageRect());
    painter.setOpacity(VeilOpacity);
    painter.fillRect(place, color);
    painter.setOpacity(1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 2));
    painter.drawRect(place.adjusted(1, 1, 0, 0));
}

/// A notch at the top of an edge: there are hidden cells between the two neighbours.
void CellEditing::paintHidden(QPainter& painter, qint64 place) const
{
    const int x = int(place);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_strip->owner->palette().color(QPalette::Text));
    painter.drawPolygon(
        QPolygon({{x - NotchSize, top()}, {x + NotchSize, top()}, {x, top() + NotchSize}}));
}

void CellEditing::paintRange(QPainter& painter) const
{
    const std::optional<TickRange> range = m_act == Ranging ? newRange() : m_range;
    if (range) {
        const QColor color = m_strip->owner->palette().color(QPalette::Highlight);
        const QRect place =
            between(m_strip->placeOf(range->first), m_strip->placeOf(qint64(range->last) + 1), 0,
                    HalfScale, pageRect());
        painter.setOpacity(VeilOpacity);
        painter.fillRect(place, color);
        painter.setOpacity(1);
        painter.fillRect(QRect(place.left(), 0, 2, HalfScale), color);
        painter.fillRect(QRect(place.right() - 1, 0, 2, HalfScale), color);
    }
}

/// Shows the new edge, and the old and the new length.
void CellEditing::paintResize(QPainter& painter) const
{
    if (m_act != Resizing || isStale()) {
        return;
    }
    const QPalette palette = m_strip->owner->palette();
    const auto place = std::lower_bound(m_dragged.begin(), m_dragged.end(), m_hit.cell);
    const int index = int(place - m_dragged.begin());
    const QVector<int> lengths = changedLengths(m_change);
    qint64 edge = m_edge;
    for (int i = 0; i <= index; ++i) {
        edge += lengths.at(i) > 0 ? lengths.at(i) - m_lengths.at(i) : 0;
    }
    const int x =
        int(std::clamp<qint64>(m_strip->placeOf(edge), -10, m_strip->owner->width() + 10));
    painter.fillRect(QRect(x - 1, top(), GapWidth, RowHeight), palette.color(QPalette::Highlight));
    const QString text = QStringLiteral("%1 \u2192 %2")
                             .arg(QString::number(cells()->at(m_hit.cell).length),
                                  QString::number(lengths.at(index)));
    QRect label = painter.fontMetrics().boundingRect(text).adjusted(-4, -2, 4, 2);
    const QRect page = pageRect();
    label.moveTopLeft(
        {std::clamp(x + 6, page.left(), std::max(page.right() - label.width(), page.left())),
         top() + (RowHeight - label.height()) / 2});
    painter.fillRect(label, palette.color(QPalette::ToolTipBase));
    painter.setPen(palette.color(QPalette::ToolTipText));
    painter.drawText(label, Qt::AlignCenter, text);
}

/// Shows where the dragged cells will go.
void CellEditing::paintGap(QPainter& painter) const
{
    if ((m_act != Moving && m_act != Dropping) || m_gap < 0) {
        return;
    }
    const TimeLineCells* all = cells();
    const int gap = std::min(m_gap, all->count());
    qint64 tick = 0;
    if (gap < all->count()) {
        tick = all->at(gap).firstTick;
    }
    if (gap > 0) {
        const TimeLineCells::Cell cell = all->at(gap - 1);
        tick = qint64(cell.firstTick) + (cell.length < 0 ? 1 : cell.length);
    }
    const QColor color = m_strip->owner->palette().color(QPalette::Highlight);
    const int x =
        int(std::clamp<qint64>(m_strip->placeOf(tick), -10, m_strip->owner->width() + 10));
    painter.fillRect(QRect(x - 1, top() - NotchSize, GapWidth, RowHeight + 2 * NotchSize), color);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygon({{x - NotchSize - 2, top() - NotchSize},
                                  {x + NotchSize + 2, top() - NotchSize},
                                  {x, top() + 2}}));
}

}  // namespace Zorv
