// The keys of a strip with cells, and the menu actions that display these keys. The actions have no
// shortcuts, which would clash with those of the window. Instead the strip handles its keys before
// shortcuts are looked up.

#include "animation/timeline/cellediting_p.h"
#include "animation/timeline/timelinewidget.h"
#include "animation/timeline/timelinewidget_p.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace Zorv {

namespace {

// For an endless cell that becomes finite: its earlier length is not known.
constexpr int UsualLength = 10;

enum Need { Cells, Editing, Range };

}  // namespace

struct CellAction
{
    const char* text;  // null: not in the menu
    int key;
    Qt::KeyboardModifiers modifiers;
    void (CellEditing::*act)();
    Need need;
};

namespace {

const CellAction actions[] = {
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "One tick longer"),
     Qt::Key_Plus,
     {},
     &CellEditing::lengthen,
     Editing},
    {nullptr, Qt::Key_Plus, Qt::ShiftModifier, &CellEditing::lengthen, Editing},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "One tick shorter"),
     Qt::Key_Minus,
     {},
     &CellEditing::shorten,
     Editing},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "Without end"),
     Qt::Key_E,
     {},
     &CellEditing::toggleEndless,
     Editing},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "To the left"), Qt::Key_Left, Qt::AltModifier,
     &CellEditing::moveLeft, Editing},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "To the right"), Qt::Key_Right, Qt::AltModifier,
     &CellEditing::moveRight, Editing},
    {nullptr, Qt::Key_Left, Qt::ControlModifier, &CellEditing::goLeft, Cells},
    {nullptr, Qt::Key_Right, Qt::ControlModifier, &CellEditing::goRight, Cells},
    {nullptr, Qt::Key_Left, Qt::ShiftModifier, &CellEditing::extendLeft, Cells},
    {nullptr, Qt::Key_Right, Qt::ShiftModifier, &CellEditing::extendRight, Cells},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "Select all"), Qt::Key_A, Qt::ControlModifier,
     &CellEditing::selectAll, Cells},
    {nullptr, Qt::Key_Escape, {}, &CellEditing::leave, Cells},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "Loop from here"),
     Qt::Key_I,
     {},
     &CellEditing::beginRange,
     Cells},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "Loop up to here"),
     Qt::Key_O,
     {},
     &CellEditing::endRange,
     Cells},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "Loop over the selection"),
     Qt::Key_L,
     {},
     &CellEditing::loopSelection,
     Cells},
    {QT_TRANSLATE_NOOP("Zorv::TimeLineWidget", "No loop"), Qt::Key_L, Qt::ShiftModifier,
     &CellEditing::clearRange, Range},
};

const CellAction* actionOf(const QKeyEvent* event)
{
    const auto fits = [event](const CellAction& action) {
        return action.key == event->key() &&
               action.modifiers == (event->modifiers() & ~Qt::KeypadModifier);
    };
    const auto* found = std::find_if(std::begin(actions), std::end(actions), fits);
    return found == std::end(actions) ? nullptr : found;
}

}  // namespace

bool CellEditing::allows(int need) const
{
    return need == Editing ? isEditable() && !m_strip->playing
                           : cells() && (need == Cells || m_range);
}

/// Escape goes to the window if there is nothing to cancel.
bool CellEditing::handles(const QKeyEvent* event) const
{
    const CellAction* action = actionOf(event);
    return action && cells() && (action->key != Qt::Key_Escape || m_act != NoAct);
}

bool CellEditing::key(const QKeyEvent* event)
{
    if (!handles(event)) {
        return false;
    }
    run(*actionOf(event));
    return true;
}

void CellEditing::run(const CellAction& action)
{
    if (allows(action.need)) {
        cancel();
        (this->*action.act)();
    }
}

/// Only a strip with cells has actions, as its context menu.
void CellEditing::offerActions()
{
    TimeLineWidget* widget = m_strip->owner;
    if (cells() && m_actions.isEmpty()) {
        for (const CellAction& row : actions) {
            if (row.text) {
                auto* action = new QAction(widget);
                m_actions.append(action);
                widget->addAction(action);
                QObject::connect(action, &QAction::triggered, m_strip, [this, &row] { run(row); });
            }
        }
        nameActions();
    } else if (!cells()) {
        qDeleteAll(m_actions);
        m_actions.clear();
    }
    widget->setContextMenuPolicy(cells() ? Qt::ActionsContextMenu : Qt::DefaultContextMenu);
    updateActions();
}

void CellEditing::nameActions()
{
    auto action = m_actions.cbegin();
    for (const CellAction& row : actions) {
        if (row.text && action != m_actions.cend()) {
            const QKeySequence keys(int(row.modifiers) | row.key);
            (*action++)->setText(QCoreApplication::translate("Zorv::TimeLineWidget", row.text) +
                                 '\t' + keys.toString(QKeySequence::NativeText));
        }
    }
}

void CellEditing::updateActions()
{
    auto action = m_actions.cbegin();
    for (const CellAction& row : actions) {
        if (row.text && action != m_actions.cend()) {
            (*action++)->setEnabled(allows(row.need));
        }
    }
}

void CellEditing::lengthen()
{
    changeLengths(1);
}

void CellEditing::shorten()
{
    changeLengths(-1);
}

void CellEditing::changeLengths(int change)
{
    takeLengths(acted());
    QVector<int> lengths = changedLengths(change);
    if (change > 0) {
        // A hidden cell gets a length and appears on the strip.
        std::replace(lengths.begin(), lengths.end(), 0, change);
    }
    giveLengths(lengths);
}

void CellEditing::toggleEndless()
{
    takeLengths(acted());
    const bool isEndless =
        std::all_of(m_lengths.begin(), m_lengths.end(), [](int length) { return length < 0; });
    giveLengths(QVector<int>(m_lengths.size(), isEndless ? UsualLength : -1));
}

void CellEditing::moveLeft()
{
    moveTo(std::max(acted().value(0) - 1, 0));
}

void CellEditing::moveRight()
{
    const QVector<int> moved = acted();
    moveTo(moved.isEmpty() ? 0 : std::min(moved.last() + 2, cells()->count()));
}

void CellEditing::goLeft()
{
    step(-1, Qt::NoModifier);
}

void CellEditing::goRight()
{
    step(1, Qt::NoModifier);
}

void CellEditing::extendLeft()
{
    step(-1, Qt::ShiftModifier);
}

void CellEditing::extendRight()
{
    step(1, Qt::ShiftModifier);
}

/// The next visible cell to the left or right; -1 for none.
int CellEditing::neighbour(int index, int direction) const
{
    const TimeLineCells::Cell cell = cells()->at(index);
    if (direction < 0) {
        return cell.firstTick > 0 ? cells()->indexAt(cell.firstTick - 1) : -1;
    }
    return cell.length < 0 ? -1 : cells()->indexAt(cell.firstTick + unsigned(cell.length));
}

void CellEditing::step(int direction, Qt::KeyboardModifiers modifiers)
{
    const QPointer<TimeLinePrivate> alive(m_strip);
    const TimeLineCells* all = cells();
    if (all->count() == 0) {
        return;
    }
    const int shown = all->indexAt(m_strip->currentTick);
    if (modifiers && shown >= 0 && selection().cells().isEmpty()) {
        select({shown});
    }
    if (!alive) {
        return;
    }
    const int from = modifiers && selection().current() >= 0 ? selection().current() : shown;
    // After the last cell, only going back is possible.
    const TimeLineCells::Cell last = all->at(all->count() - 1);
    const int next = from >= 0       ? neighbour(from, direction)
                     : direction < 0 ? all->indexAt(last.firstTick + unsigned(last.length) - 1)
                                     : -1;
    if (next >= 0) {
        const unsigned int tick = all->at(next).firstTick;
        pick(next, modifiers);
        if (alive) {
            m_strip->moveTo(tick);
        }
    }
}

void CellEditing::selectAll()
{
    QVector<int> all(cells()->count());
    std::iota(all.begin(), all.end(), 0);
    select(all);
}

void CellEditing::beginRange()
{
    const unsigned int tick = m_strip->currentTick;
    setRange(TickRange{tick, std::max(tick, m_range ? m_range->last : tick)});
}

void CellEditing::endRange()
{
    const unsigned int tick = m_strip->currentTick;
    setRange(TickRange{std::min(tick, m_range ? m_range->first : tick), tick});
}

/// From the first to the last visible one of the selected cells.
void CellEditing::loopSelection()
{
    const QVector<int> selected = acted();
    if (selected.isEmpty()) {
        return;
    }
    const TimeLineCells::Cell first = cells()->at(selected.first());
    const TimeLineCells::Cell last = cells()->at(selected.last());
    // An endless cell counts as one tick. The range has at least one tick.
    const unsigned int end = last.firstTick + (last.length < 0 ? 1U : unsigned(last.length));
    setRange(TickRange{first.firstTick, std::max(first.firstTick + 1, end) - 1});
}

void CellEditing::clearRange()
{
    setRange({});
}

void CellEditing::leave()
{
    cancel();
}

}  // namespace Zorv
