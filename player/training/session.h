#pragma once

#include "rules/state.h"
#include "training/dummy.h"
#include "training/framemeter.h"
#include "training/statering.h"

namespace Player {

/// A match that can be paused, rewound and restarted from its places.
class Session
{
public:
    /// The number of clock ticks for one tick of the match.
    enum class Speed { Full = 1, Half = 2, Quarter = 4 };

    /// The game must outlive the session.
    explicit Session(const Rules::Game& game);

    const Rules::State& state() const { return m_state; }
    const FrameMeter& meter() const { return m_meter; }
    const Dummy& dummy() const { return m_dummy; }
    bool isPaused() const { return m_isPaused; }
    Speed speed() const { return m_speed; }

    /// How many ticks can be taken back.
    int pastTicks() const { return m_ring.count(); }

    /// Advances the clock by a tick, with the inputs held on screen. True if the match advanced.
    bool clockTick(const Rules::Inputs& inputs);

    /// Advances by one tick, even if paused.
    void step(const Rules::Inputs& inputs);

    /// Takes back the last tick. False if there is none.
    bool stepBack();

    void setPaused(bool isPaused) { m_isPaused = isPaused; }

    /// Cycles through full, half and quarter speed.
    void nextSpeed();

    /// Sets the mode of the second fighter.
    void setDummy(Dummy::Mode mode) { m_dummy.setMode(mode, m_state); }

    /// Puts both fighters back to their places at the start of the round, with full life and power,
    /// and ends everything that was running.
    void resetPlaces();

    /// Continues a match of another game, after characters or stage have changed: both at their
    /// places, with their life and power, and free.
    void takeOver(const Session& other);

    /// Restarts at the first tick of a match.
    void beginMatch();

    /// An endless match: life and power are refilled as soon as both are free, the clock stands
    /// still, and a fighter that is knocked out returns to its place.
    bool isEndless() const { return m_isEndless; }
    void setEndless(bool isEndless) { m_isEndless = isEndless; }

private:
    void fillUp();

    const Rules::Game& m_game;
    Rules::State m_state;
    StateRing m_ring;
    FrameMeter m_meter;
    Dummy m_dummy;
    bool m_isPaused = false;
    bool m_isEndless = false;
    Speed m_speed = Speed::Full;
    int m_clockTicks = 0;
};

}  // namespace Player
