#pragma once

#include <QVector>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// What a fighter does while nobody plays it.
///
/// What was recorded is kept as a motion has it, so that it is replayed to either side. A replay
/// knows the tick in which it began, and so follows a match that is turned back.
class Dummy
{
public:
    enum Mode { Person, Stand, Crouch, Guard, Jump, Random, Record, Replay };
    static constexpr int ModeCount = Replay + 1;

    /// The most that is recorded, in ticks.
    static constexpr int MostTicks = 3600;

    /// The game outlives it.
    Dummy(const Rules::Game& game, int fighter) : m_game(game), m_fighter(fighter) {}

    Mode mode() const { return m_mode; }

    /// Recording begins anew, and a replay from the start.
    void setMode(Mode mode, const Rules::State& state);

    /// A match begins whose ticks are counted anew: a replay and a recording start with it.
    void startAnew(const Rules::State& state);

    /// What it holds in the tick behind a state, as signs of the screen. `person` is what the
    /// person holds, who plays it for `Person` and `Record`.
    quint8 signs(const Rules::State& state, quint8 person);

    /// Does what another one did, in another game.
    void takeOver(const Dummy& other);

    int recordedTicks() const { return m_record.size(); }

private:
    quint8 guardSigns(const Rules::State& state) const;

    const Rules::Game& m_game;
    int m_fighter;
    Mode m_mode = Person;
    QVector<quint8> m_record;  // with forward where the fighter looks
    int m_start = 0;           // the tick before the first one of the record
};

}  // namespace Player
