#pragma once

#include "rules/state.h"
#include "training/dummy.h"
#include "training/framemeter.h"
#include "training/statering.h"

namespace Player {

/// A match that can be stopped, turned back and begun anew where it was.
class Session
{
public:
    /// One tick of the match for so many of the clock.
    enum class Speed { Full = 1, Half = 2, Quarter = 4 };

    /// The game outlives the session.
    explicit Session(const Rules::Game& game);

    const Rules::State& state() const { return m_state; }
    const FrameMeter& meter() const { return m_meter; }
    const Dummy& dummy() const { return m_dummy; }
    bool isPaused() const { return m_isPaused; }
    Speed speed() const { return m_speed; }

    /// How many ticks can be taken back.
    int pastTicks() const { return m_ring.count(); }

    /// A tick of the clock, with what is held on the screen. True if the match went on.
    bool clockTick(const Rules::Inputs& inputs);

    /// Goes on by a tick, paused or not.
    void step(const Rules::Inputs& inputs);

    /// Takes the last tick back. False without one.
    bool stepBack();

    void setPaused(bool isPaused) { m_isPaused = isPaused; }

    /// Full, half, a quarter, and full again.
    void nextSpeed();

    /// What the second fighter does, one mode behind the other.
    void setDummy(Dummy::Mode mode) { m_dummy.setMode(mode, m_state); }

    /// Both stand where they did at the beginning of the round, with all of their life and power,
    /// and nothing that went on goes on.
    void resetPlaces();

    /// Goes on from a match of another game, whose characters and stage have changed: both at their
    /// places, with their life and power, and free.
    void takeOver(const Session& other);

    /// From the first tick of a match.
    void beginMatch();

    /// Life and power come back as soon as both are free, the time stands still, and who is knocked
    /// out is back at its place: a match that does not end.
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
