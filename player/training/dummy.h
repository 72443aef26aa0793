#pragma once

#include <QVector>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// Controls a fighter that no person plays.
///
/// A recording stores directions relative to the fighter, so it can be replayed to either side. A
/// replay knows the tick in which it began, so it still fits after the match is turned back.
class Dummy
{
public:
    enum Mode { Person, Stand, Crouch, Guard, Jump, Random, Record, Replay };
    static constexpr int ModeCount = Replay + 1;

    /// The maximum length of a recording, in ticks.
    static constexpr int MostTicks = 3600;

    /// The game must outlive this object.
    Dummy(const Rules::Game& game, int fighter) : m_game(game), m_fighter(fighter) {}

    Mode mode() const { return m_mode; }

    /// Sets the mode. A recording starts from scratch, a replay at its beginning.
    void setMode(Mode mode, const Rules::State& state);

    /// Call it when a new match restarts the tick count: a replay or recording starts over with it.
    void startAnew(const Rules::State& state);

    /// The inputs for the tick after `state`, as screen directions and buttons. `person` is the
    /// person's own input, used by `Person` and `Record`.
    quint8 signs(const Rules::State& state, quint8 person);

    /// Copies mode and recording from a dummy of another game.
    void takeOver(const Dummy& other);

    int recordedTicks() const { return m_record.size(); }

private:
    quint8 guardSigns(const Rules::State& state) const;

    const Rules::Game& m_game;
    int m_fighter;
    Mode m_mode = Person;
    QVector<quint8> m_record;  // with forward where the fighter looks
    int m_start = 0;           // the tick before the first one of the recording
};

}  // namespace Player
