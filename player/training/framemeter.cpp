// One cell per tick. A move counts as start until it has attacked, which is known from its own
// earlier cells. So a meter that begins in the middle of a move only knows what it has seen.

#include "training/framemeter.h"

#include "rules/tick.h"

#include <algorithm>

namespace Player {

using Rules::Action;
using Rules::FighterState;
using Rules::State;

namespace {

constexpr int IdleTicks = 12;  // after this many idle ticks the meter pauses

bool isStunned(Action action)
{
    switch (action) {
    case Action::GuardedHit:
    case Action::Hit:
    case Action::Fall:
    case Action::Bounce:
    case Action::Lying:
    case Action::GettingUp:
    case Action::Held:
        return true;
    default:
        return false;
    }
}

/// Counts the cells of one kind backward from `*from`.
int countBack(const QVector<FrameMeter::Cell>& cells, int* from, FrameMeter::Cell kind)
{
    int count = 0;
    while (*from >= 0 && cells.at(*from) == kind) {
        --*from;
        ++count;
    }
    return count;
}

}  // namespace

QChar FrameMeter::letter(Cell cell)
{
    return QLatin1Char(".SARX-"[cell]);
}

void FrameMeter::clear()
{
    m_cells[0].clear();
    m_cells[1].clear();
    m_ticks.clear();
}

FrameMeter::Cell FrameMeter::cellOf(const State& state, int fighter) const
{
    const FighterState& own = state.fighters[fighter];
    if (Rules::isFree(own) && own.action != Action::Air) {
        return Free;
    }
    if (own.action != Action::Move) {
        return isStunned(own.action) ? Stun : Busy;
    }
    const auto& animations = m_game.fighters[fighter].animations;
    const bool attacks =
        own.animation >= 0 && !animations.at(own.animation).frames.at(own.frame).attack.isEmpty();
    if (attacks) {
        return Active;
    }
    const bool isNew = own.actionTick == 0 || m_cells[fighter].isEmpty();
    const Cell before = isNew ? Free : m_cells[fighter].constLast();
    return before == Active || before == Recovery ? Recovery : Start;
}

void FrameMeter::see(const State& state)
{
    while (!m_ticks.isEmpty() && m_ticks.constLast() >= state.tick) {
        m_ticks.removeLast();
        m_cells[0].removeLast();
        m_cells[1].removeLast();
    }
    if (state.fighters[0].stop > 0 && state.fighters[1].stop > 0) {
        return;
    }
    const Cell first = cellOf(state, 0);
    const Cell second = cellOf(state, 1);
    const int idle = qMin(m_ticks.size(), IdleTicks);
    const auto isFree = [](Cell cell) { return cell == Free; };
    if (first == Free && second == Free && idle == IdleTicks &&
        std::all_of(m_cells[0].cend() - idle, m_cells[0].cend(), isFree) &&
        std::all_of(m_cells[1].cend() - idle, m_cells[1].cend(), isFree)) {
        return;
    }
    if (m_ticks.size() == MostTicks) {
        m_ticks.removeFirst();
        m_cells[0].removeFirst();
        m_cells[1].removeFirst();
    }
    m_ticks.append(state.tick);
    m_cells[0].append(first);
    m_cells[1].append(second);
}

FrameMeter::Numbers FrameMeter::numbers(int fighter) const
{
    const QVector<Cell>& cells = m_cells[fighter];
    const auto isMove = [](Cell cell) {
        return cell == Start || cell == Active || cell == Recovery;
    };
    int at = cells.size() - 1;
    while (at >= 0 && !isMove(cells.at(at))) {
        --at;
    }
    Numbers numbers;
    numbers.recovery = countBack(cells, &at, Recovery);
    // The gaps between several hits of a move count as active.
    for (; at >= 0 && (cells.at(at) == Active || cells.at(at) == Recovery); --at) {
        ++numbers.active;
    }
    numbers.start = countBack(cells, &at, Start);
    return numbers;
}

bool FrameMeter::hasAdvantage() const
{
    const QVector<Cell>& first = m_cells[0];
    const QVector<Cell>& second = m_cells[1];
    const bool areFree =
        !first.isEmpty() && first.constLast() == Free && second.constLast() == Free;
    return areFree && (first.contains(Stun) || second.contains(Stun));
}

int FrameMeter::advantage() const
{
    const auto freeTicks = [](const QVector<Cell>& cells) {
        int at = cells.size() - 1;
        return countBack(cells, &at, Free);
    };
    return freeTicks(m_cells[0]) - freeTicks(m_cells[1]);
}

}  // namespace Player
