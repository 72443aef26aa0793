#include "animation/timeline/cellediting_p.h"

#include "animation/timeline/timeline.h"
#include "animation/timeline/timelinewidget.h"
#include "animation/timeline/timelinewidget_p.h"

#include <QPointer>

#include <algorithm>
#include <limits>
#include <numeric>

namespace Zorv {

namespace {

// An edge is grabbed within these pixels before it, even in the cell under the cursor bar. Half of
// a one-tick cell remains for the cell itself, or for the bar.
constexpr int EdgeReach = 3;

/// The width of a cell in ticks. An endless cell is drawn one tick wide.
qint64 drawnLength(int length)
{
    return length < 0 ? 1 : length;
}

}  // namespace

CellEditing::CellEditing(TimeLinePrivate* strip) : m_strip(strip)
{
    m_scrolling.setInterval(100);
    QObject::connect(&m_scrolling, &QTimer::timeout, strip, [this] { scroll(); });
}

int CellEditing::row() const
{
    const QList<TimeLine*>& rows = m_strip->timeLines;
    const auto found =
        std::find_if(rows.begin(), rows.end(), [](TimeLine* row) { return row->cells(); });
    return found == rows.end() ? -1 : int(found - rows.begin());
}

TimeLineCells* CellEditing::cells() const
{
    const int index = row();
    return index < 0 ? nullptr : m_strip->timeLines.at(index)->cells();
}

bool CellEditing::isEditable() const
{
    return cells() && cells()->isEditable();
}

CellSelection& CellEditing::selection()
{
    m_selection.fit(cells() ? cells()->count() : 0);
    return m_selection;
}

void CellEditing::select(const QVector<int>& cells)
{
    const bool isOther = m_selection.set(cells);
    selection();
    updateActions();
    m_strip->owner->update();
    if (isOther) {
        emit m_strip->owner->selectionChanged();
    }
}

void CellEditing::pick(int cell, Qt::KeyboardModifiers modifiers)
{
    const bool isOther = selection().pick(cell, modifiers);
    m_strip->owner->update();
    if (isOther) {
        emit m_strip->owner->selectionChanged();
    }
}

void CellEditing::setRange(const std::optional<TickRange>& range)
{
    if (range != m_range) {
        m_range = range;
        updateActions();
        m_strip->owner->update();
        emit m_strip->owner->loopRangeChanged();
    }
}

QVector<int> CellEditing::acted()
{
    const TimeLineCells* all = cells();
    if (!all) {
        return {};
    }
    if (!selection().cells().isEmpty()) {
        return selection().cells();
    }
    const int shown = all->indexAt(m_strip->currentTick);
    return shown < 0 ? QVector<int>() : QVector<int>{shown};
}

int CellEditing::top() const
{
    return TimeLinePrivate::HeaderHeight + TimeLinePrivate::RowHeight * row();
}

CellEditing::Hit CellEditing::hitTest(const QPoint& place) const
{
    const TimeLinePrivate::Target target = m_strip->hitTest(place);
    const bool isOnStrip = cells() && target != TimeLinePrivate::NoTarget;
    const bool isInRow =
        isOnStrip && place.y() >= top() && place.y() < top() + TimeLinePrivate::RowHeight;
    const int edge = isInRow && isEditable() ? edgeAt(place.x()) : -1;
    if (edge >= 0) {
        return {Edge, edge};
    }
    if (target == TimeLinePrivate::Cursor) {
        return {Cursor, cells() ? bodyAt(place.x()) : -1};
    }
    if (isOnStrip && place.y() < TimeLinePrivate::HeaderHeight) {
        return hitScale(place);
    }
    const int body = isInRow ? bodyAt(place.x()) : -1;
    return body >= 0 ? Hit{Body, body} : Hit{};
}

/// The lower half, with the tick marks, only sets the tick.
CellEditing::Hit CellEditing::hitScale(const QPoint& place) const
{
    if (place.y() >= TimeLinePrivate::HeaderHeight / 2) {
        return {};
    }
    if (m_range) {
        if (std::abs(place.x() - m_strip->placeOf(m_range->first)) <= EdgeReach) {
            return {RangeStart, -1};
        }
        if (std::abs(place.x() - m_strip->placeOf(qint64(m_range->last) + 1)) <= EdgeReach) {
            return {RangeEnd, -1};
        }
    }
    return {Scale, -1};
}

int CellEditing::bodyAt(int x) const
{
    const unsigned int tick = m_strip->tickAt(x);
    const int index = cells()->indexAt(tick);
    if (index < 0) {
        return -1;
    }
    const TimeLineCells::Cell cell = cells()->at(index);
    return tick < cell.firstTick + drawnLength(cell.length) ? index : -1;
}

int CellEditing::edgeAt(int x) const
{
    const int index = bodyAt(x);
    if (index < 0) {
        return -1;
    }
    const TimeLineCells::Cell cell = cells()->at(index);
    const qint64 length = drawnLength(cell.length);
    return x >= m_strip->placeOf(cell.firstTick + length) - EdgeReach ? index : -1;
}

/// The left half of a cell means before it, the right half after it.
int CellEditing::gapAt(int x) const
{
    const int index = bodyAt(x);
    if (index < 0) {
        return x < TimeLinePrivate::LabelWidth ? 0 : cells()->count();
    }
    const TimeLineCells::Cell cell = cells()->at(index);
    const qint64 left = m_strip->placeOf(cell.firstTick);
    const qint64 width = drawnLength(cell.length) * TimeLinePrivate::TickWidth;
    return x < left + width / 2 ? index : index + 1;
}

Qt::CursorShape CellEditing::shape(const QPoint& place) const
{
    switch (hitTest(place).part) {
    case Cursor:
        return Qt::SizeHorCursor;
    case Edge:
    case RangeStart:
    case RangeEnd:
        return Qt::SplitHCursor;
    case Scale:
        return Qt::CrossCursor;
    case Body:
        return isEditable() ? Qt::OpenHandCursor : Qt::ArrowCursor;
    case Elsewhere:
        break;
    }
    return Qt::ArrowCursor;
}

/// The cells' lengths, each changed by `change`. No length drops below one tick; endless and hidden
/// cells stay unchanged.
QVector<int> CellEditing::changedLengths(int change) const
{
    QVector<int> lengths = m_lengths;
    for (int& length : lengths) {
        if (length > 0) {
            length = int(
                std::clamp<qint64>(qint64(length) + change, 1, std::numeric_limits<int>::max()));
        }
    }
    return lengths;
}

void CellEditing::takeLengths(const QVector<int>& cells)
{
    const TimeLineCells* all = this->cells();
    m_dragged = cells;
    m_lengths.clear();
    for (const int cell : cells) {
        m_lengths.append(all->at(cell).length);
    }
}

/// Writes only those lengths that differ from the recorded ones.
void CellEditing::giveLengths(const QVector<int>& lengths)
{
    QVector<int> others;
    QVector<int> theirs;
    for (int i = 0; i < lengths.size(); ++i) {
        if (lengths.at(i) != cells()->at(m_dragged.at(i)).length) {
            others.append(m_dragged.at(i));
            theirs.append(lengths.at(i));
        }
    }
    if (!others.isEmpty()) {
        cells()->setLengths(others, theirs);
    }
}

/// Moves the affected cells before another one and keeps them selected.
void CellEditing::moveTo(int target)
{
    const QVector<int> moved = acted();
    if (moved.isEmpty()) {
        return;
    }
    const bool isBlock = moved.last() - moved.first() == moved.size() - 1;
    if (isBlock && target >= moved.first() && target <= moved.last() + 1) {
        return;
    }
    const QPointer<TimeLinePrivate> alive(m_strip);
    const auto before = std::lower_bound(moved.begin(), moved.end(), target) - moved.begin();
    if (cells()->move(moved, target) && alive) {
        QVector<int> places(moved.size());
        std::iota(places.begin(), places.end(), target - int(before));
        select(places);
    }
}

}  // namespace Zorv
