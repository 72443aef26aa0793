// Mouse handling for the cells of a strip: turns each press into one action.

#include "animation/timeline/cellediting_p.h"
#include "animation/timeline/timelinewidget.h"
#include "animation/timeline/timelinewidget_p.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

constexpr Qt::KeyboardModifiers Picking = Qt::ControlModifier | Qt::ShiftModifier;
constexpr int DropMargin = 12;  // of the page: scrolls while something is dragged over it

}  // namespace

bool CellEditing::press(const QMouseEvent* event)
{
    cancel();
    m_hit = hitTest(event->pos());
    m_pressed = event->pos();
    m_place = event->pos();
    m_modifiers = event->modifiers() & Picking;
    updateActions();
    if (!cells()) {
        return false;
    }
    if (event->button() != Qt::LeftButton) {
        // A context menu applies to the cell under the mouse.
        if (m_hit.cell >= 0 && !selection().contains(m_hit.cell)) {
            click(event->x(), Qt::NoModifier);
        }
        return true;
    }
    const bool picks = m_hit.part == Cursor && m_hit.cell >= 0 && m_modifiers != Qt::NoModifier;
    m_hit.part = picks ? Body : m_hit.part;
    m_act = Pressed;
    return m_hit.part != Elsewhere && m_hit.part != Cursor;
}

bool CellEditing::move(const QMouseEvent* event)
{
    if (m_act == NoAct) {
        return false;
    }
    const int distance = (event->pos() - m_pressed).manhattanLength();
    const bool isStrips = m_hit.part == Elsewhere || m_hit.part == Cursor;
    if (m_act == Pressed && isStrips) {
        m_act = distance < QApplication::startDragDistance() ? Pressed : NoAct;
        return false;
    }
    if (m_act == Pressed && (m_hit.part != Body || distance >= QApplication::startDragDistance())) {
        beginDrag();
    }
    if (m_act != Pressed) {
        follow(event->pos());
    }
    return true;
}

void CellEditing::begin(Act act)
{
    m_act = act;
    m_count = cells()->count();
    m_scrolling.start();
}

void CellEditing::beginResize()
{
    const bool isSelected = selection().contains(m_hit.cell);
    takeLengths(isSelected ? selection().cells() : QVector<int>{m_hit.cell});
    // Dragging the edge of an endless cell makes it finite.
    const int place =
        int(std::lower_bound(m_dragged.begin(), m_dragged.end(), m_hit.cell) - m_dragged.begin());
    m_before = 1 + int(std::count_if(m_lengths.begin(), m_lengths.begin() + place,
                                     [](int length) { return length > 0; }));
    const TimeLineCells::Cell cell = cells()->at(m_hit.cell);
    m_lengths[place] = std::max(cell.length, 1);
    m_edge = qint64(cell.firstTick) + m_lengths.at(place);
    m_change = 0;
    begin(Resizing);
}

void CellEditing::beginDrag()
{
    const QPointer<TimeLinePrivate> alive(m_strip);
    switch (m_hit.part) {
    case Edge:
        beginResize();
        break;
    case Body:
        if (!isEditable()) {
            return;
        }
        if (!selection().contains(m_hit.cell)) {
            pick(m_hit.cell, m_modifiers & Qt::ControlModifier);
        }
        if (alive) {
            m_strip->owner->setCursor(Qt::ClosedHandCursor);
            begin(Moving);
        }
        break;
    case Scale:
        m_tick = m_strip->tickAt(m_pressed.x());
        begin(Ranging);
        break;
    case RangeStart:
    case RangeEnd:
        m_tick = m_hit.part == RangeStart ? m_range->last : m_range->first;
        begin(Ranging);
        break;
    default:
        break;
    }
}

/// Updates the preview to the mouse position.
void CellEditing::follow(const QPoint& place)
{
    m_place = place;
    if (m_act == Resizing) {
        // Every growing cell up to the edge moves it by the same amount, hence the division.
        const qint64 edge = m_strip->edgeAt(place.x());
        m_change = int(std::lround(double(edge - m_edge) / m_before));
    } else if (m_act == Moving || m_act == Dropping) {
        m_gap = gapAt(place.x());
    }
    m_strip->owner->update();
}

/// If cells were added, removed or resized during the drag, it would not do what it shows.
bool CellEditing::isStale() const
{
    const TimeLineCells* all = cells();
    if (!all || all->count() != m_count || (m_act != Ranging && !isEditable())) {
        return true;
    }
    const auto isOther = [this, all](int cell) {
        const int length = all->at(cell).length;
        const auto place = std::lower_bound(m_dragged.begin(), m_dragged.end(), cell);
        return m_lengths.at(int(place - m_dragged.begin())) !=
               (cell == m_hit.cell ? std::max(length, 1) : length);
    };
    return m_act == Resizing && std::any_of(m_dragged.begin(), m_dragged.end(), isOther);
}

bool CellEditing::release(const QMouseEvent* event)
{
    if (m_act == NoAct || event->button() != Qt::LeftButton) {
        return cells() && event->button() != Qt::LeftButton;
    }
    const QPointer<TimeLinePrivate> alive(m_strip);
    const bool isStrips = m_hit.part == Elsewhere || m_hit.part == Cursor;
    if (m_act != Pressed) {
        finish(event);
    } else if (!isStrips) {
        m_act = NoAct;
        click(event->x(), m_modifiers);
    } else {
        m_act = NoAct;
        if (m_hit.cell >= 0) {
            pick(m_hit.cell, Qt::NoModifier);
        } else if (m_modifiers == Qt::NoModifier) {
            select({});
        }
    }
    if (alive && !isStrips) {
        m_strip->showCursorShape(event->pos());
    }
    return !isStrips;
}

/// Outside of cells, sets the tick as in any other row.
void CellEditing::click(int x, Qt::KeyboardModifiers modifiers)
{
    const QPointer<TimeLinePrivate> alive(m_strip);
    bool isTaken = true;
    if (m_hit.cell >= 0) {
        pick(m_hit.cell, modifiers);
        isTaken = alive && (modifiers == Qt::NoModifier || m_selection.contains(m_hit.cell));
    }
    if (alive && isTaken) {
        m_strip->moveToPlace(x);
    }
}

void CellEditing::finish(const QMouseEvent* event)
{
    const Act act = isStale() ? NoAct : m_act;
    if (act != NoAct) {
        follow(event->pos());
    }
    const TickRange range = act == Ranging ? newRange() : TickRange();
    cancel();
    if (act == Resizing && m_change != 0) {
        giveLengths(changedLengths(m_change));
    } else if (act == Moving) {
        moveTo(m_gap);
    } else if (act == Ranging) {
        setRange(range);
    }
}

TickRange CellEditing::newRange() const
{
    return TickRange::between(m_tick, m_strip->tickAt(m_place.x()));
}

void CellEditing::cancel()
{
    if (m_act != NoAct) {
        m_act = NoAct;
        m_scrolling.stop();
        m_strip->turnPage();
        m_strip->owner->update();
    }
}

bool CellEditing::doubleClick(const QMouseEvent* event)
{
    const Part part = hitTest(event->pos()).part;
    if (event->button() != Qt::LeftButton || !m_range ||
        (part != Scale && part != RangeStart && part != RangeEnd)) {
        return false;
    }
    setRange({});
    return true;
}

/// Dragging past an end of the page scrolls; cells only as far as there are any.
void CellEditing::scroll()
{
    if (isStale()) {
        cancel();
        return;
    }
    const int margin = m_act == Dropping ? DropMargin : 0;
    const qint64 end = qint64(m_strip->firstTick) + m_strip->visibleTicks;
    const bool isPast = m_place.x() >= m_strip->placeOf(end) - margin;
    const bool isBefore = m_place.x() < TimeLinePrivate::LabelWidth + margin;
    const bool isCells = m_act == Moving || m_act == Dropping;
    if (isBefore || (isPast && !(isCells && cells()->indexAt(static_cast<unsigned>(end)) < 0))) {
        m_strip->firstTick = static_cast<unsigned int>(std::clamp<qint64>(
            qint64(m_strip->firstTick) + (isPast ? 10 : -10), 0, TimeLinePrivate::LastPage));
        follow(m_place);
    }
}

bool CellEditing::dragOver(QDragMoveEvent* event)
{
    if (m_strip->playing || !isEditable() || !cells()->accepts(event->mimeData())) {
        return false;
    }
    if (m_act != Dropping) {
        begin(Dropping);
    }
    follow(event->pos());
    event->acceptProposedAction();
    return true;
}

bool CellEditing::drop(QDropEvent* event)
{
    if (m_act != Dropping || !isEditable() || !cells()->accepts(event->mimeData())) {
        cancel();
        return false;
    }
    const int gap = gapAt(event->pos().x());
    cancel();
    event->acceptProposedAction();
    cells()->drop(event->mimeData(), gap);
    return true;
}

}  // namespace Zorv
