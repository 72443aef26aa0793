#include "rules/bout.h"

namespace Rules {

using Family::Motion;
using Family::MotionStep;

// A motion is searched backward from the current tick. Each step is matched as late as possible: if
// any match fits into the time limit, the one that starts latest does. The last step of a motion is
// always a change, so the search only runs when the input has changed in this tick, and only for
// motions whose last step fits the change.

namespace {

/// How many ticks apart the buttons of one step may be pressed.
constexpr int Together = 3;

/// The inputs of a fighter in the last ticks; age 0 is now.
class History
{
public:
    History(const FighterState& fighter, int tick)
        : m_fighter(fighter), m_tick(tick), m_length(qMin(tick, FighterState::HistoryTicks - 1))
    {
    }

    /// Before the first tick, nothing was held.
    quint8 at(int age) const
    {
        if (age > m_length) {
            return 0;
        }
        const int place = (m_tick - age) % FighterState::HistoryTicks;
        return mirrored(m_fighter.history[place], m_fighter.facing);
    }

    quint8 direction(int age) const { return at(age) & MotionStep::Directions; }
    int length() const { return m_length; }

    /// True if the ring buffer is full, so that older inputs are unknown.
    bool isFull() const { return m_length == FighterState::HistoryTicks - 1; }

private:
    const FighterState& m_fighter;
    int m_tick;
    int m_length;
};

/// With a button, the diagonals count as down and up too.
bool holdsBeside(quint8 held, quint8 direction)
{
    const bool isVertical = direction == MotionStep::Down || direction == MotionStep::Up;
    return direction == 0 ||
           (isVertical ? (held & direction) != 0 : (held & MotionStep::Directions) == direction);
}

/// True for no direction, and for one that is an eighth of a turn away.
bool isBeside(quint8 held, quint8 direction)
{
    return held == 0 || qPopulationCount(quint8(held ^ direction)) == 1;
}

bool isPressed(const History& history, quint8 button, int age)
{
    return (history.at(age) & button) != 0 && (history.at(age + 1) & button) == 0;
}

bool arePressed(const History& history, const MotionStep& step, int age)
{
    const quint8 buttons = step.buttons();
    const quint8 now = history.at(age);
    if ((now & buttons) != buttons || (buttons & ~history.at(age + 1)) == 0 ||
        !holdsBeside(now, step.direction())) {
        return false;
    }
    for (quint8 button = MotionStep::Light; button != 0; button = quint8(button << 1)) {
        bool isNew = (buttons & button) == 0;
        for (int back = 0; back <= Together && !isNew; ++back) {
            isNew = isPressed(history, button, age + back);
        }
        if (!isNew) {
            return false;
        }
    }
    return true;
}

bool isReleased(const History& history, const MotionStep& step, int age)
{
    const auto isHeld = [&](int at) { return (history.at(at) & step.signs) == step.signs; };
    if (isHeld(age) || !isHeld(age + 1)) {
        return false;
    }
    int held = 0;
    while (held < step.held && age + 1 + held <= history.length() && isHeld(age + 1 + held)) {
        ++held;
    }
    // Inputs held at the end of the history may have been held even longer, so they count as long
    // enough.
    return held >= step.held || (history.isFull() && age + 1 + held > history.length());
}

/// Finds the steps of a motion, from the last to the first.
class StepSearch
{
public:
    StepSearch(const History& history, int time) : m_history(history), m_time(time) {}

    /// Checks the last step of a motion, which must happen now.
    bool last(const MotionStep& step)
    {
        if (step.isReleased) {
            passEvent(0, true);
            return isReleased(m_history, step, 0);
        }
        if (step.buttons() != 0) {
            passEvent(0, false);
            if (step.direction() != 0) {
                passRun(0, step);
            }
            return arePressed(m_history, step, 0);
        }
        passRun(0, step);
        return m_history.direction(0) == step.direction() &&
               m_history.direction(1) != step.direction();
    }

    /// Finds the step before those found so far. `isRepeated` means the same direction again: then
    /// the stick must not have been elsewhere in between. Otherwise the end of a longer motion
    /// would match.
    bool next(const MotionStep& step, bool isRepeated)
    {
        const int from = step.isReleased ? m_release : step.buttons() ? m_button : m_direction;
        for (int age = from; age <= m_time && age <= m_history.length(); ++age) {
            if (isDone(step, age)) {
                pass(step, age);
                return true;
            }
            if (isRepeated && !isBeside(m_history.direction(age), step.direction())) {
                return false;
            }
        }
        return false;
    }

private:
    bool isDone(const MotionStep& step, int age) const
    {
        if (step.isReleased) {
            return isReleased(m_history, step, age);
        }
        return step.buttons() != 0 ? arePressed(m_history, step, age)
                                   : m_history.direction(age) == step.direction();
    }

    void pass(const MotionStep& step, int age)
    {
        if (step.isReleased || step.buttons() != 0) {
            passEvent(age, step.isReleased);
        }
        if (!step.isReleased && step.direction() != 0) {
            passRun(age, step);
        }
    }

    /// Restricts earlier steps to the time before a moment. A direction may still be held when a
    /// button is pressed. A release may happen in the same tick as another step.
    void passEvent(int age, bool isRelease)
    {
        m_direction = isRelease ? age + 1 : age;
        m_button = age + 1;
        m_release = isRelease ? age + 1 : age;
    }

    /// Restricts earlier steps to the time before the direction of a step was reached.
    void passRun(int age, const MotionStep& step)
    {
        const bool isExact = step.buttons() == 0;
        int start = age;
        while (start <= m_history.length() &&
               (isExact ? m_history.direction(start) == step.direction()
                        : holdsBeside(m_history.at(start), step.direction()))) {
            ++start;
        }
        m_direction = start;
        m_button = start;
        m_release = qMax(start - 1, 0);
    }

    const History& m_history;
    int m_time;
    int m_direction = 0;  // the smallest age to search for each kind of step
    int m_button = 0;
    int m_release = 0;
};

bool isComplete(const Motion& motion, const History& history, int time)
{
    StepSearch search(history, time);
    if (!search.last(motion.constLast())) {
        return false;
    }
    for (int i = motion.size() - 2; i >= 0; --i) {
        const MotionStep& step = motion.at(i);
        const bool isRepeated = step == motion.at(i + 1) && step.buttons() == 0 && !step.isReleased;
        if (!search.next(step, isRepeated)) {
            return false;
        }
    }
    return true;
}

/// What has changed in a tick.
struct Change
{
    quint8 now;
    quint8 pressed;
    quint8 released;
    bool isOfDirection;

    Change(quint8 held, quint8 before)
        : now(held), pressed(quint8(held & ~before)), released(quint8(before & ~held)),
          isOfDirection(((held ^ before) & MotionStep::Directions) != 0)
    {
    }

    /// A cheap test that rules out most motions.
    bool canEnd(const MotionStep& last) const
    {
        if (last.isReleased) {
            return (released & last.signs) != 0;
        }
        return last.buttons() != 0
                   ? (pressed & last.buttons()) != 0
                   : isOfDirection && (now & MotionStep::Directions) == last.direction();
    }
};

quint8 cleaned(quint8 signs)
{
    constexpr quint8 sides = Inputs::Left | Inputs::Right;
    constexpr quint8 heights = Inputs::Up | Inputs::Down;
    signs = (signs & sides) == sides ? quint8(signs & ~sides) : signs;
    return (signs & heights) == heights ? quint8(signs & ~heights) : signs;
}

}  // namespace

void takeInputs(Bout& bout, const Inputs& inputs)
{
    const int tick = bout.state.tick;
    const int place = tick % FighterState::HistoryTicks;
    const int before = (tick + FighterState::HistoryTicks - 1) % FighterState::HistoryTicks;
    for (int i = 0; i < 2; ++i) {
        FighterState& own = bout.fighter(i);
        const FighterData& data = bout.data(i);
        own.history[place] = cleaned(inputs.signs[i]);
        if (own.stop == 0 && own.commandTicks > 0) {
            --own.commandTicks;
            for (int c = 0; c < data.commands.size(); ++c) {
                own.commands[c] = quint8(own.commands[c] - (own.commands[c] > 0));
            }
        }
        if (own.history[place] == own.history[before]) {
            continue;
        }
        const History history(own, tick);
        const Change change(mirrored(own.history[place], own.facing),
                            mirrored(own.history[before], own.facing));
        for (int c = 0; c < data.commands.size(); ++c) {
            for (const Motion& motion : data.commands.at(c).motions) {
                if (change.canEnd(motion.constLast()) && isComplete(motion, history, data.time)) {
                    own.commands[c] = quint8(data.buffer);
                    own.commandTicks = data.buffer;
                    break;
                }
            }
        }
    }
}

}  // namespace Rules
