#pragma once

#include <QChar>
#include <QVector>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// The frame meter: the phase of each fighter during the last ticks, and the last frame advantage.
///
/// It is computed from states, so it shows what really happened, not what the text promises. Ticks
/// of hit stop are skipped, because nothing advances in them.
class FrameMeter
{
public:
    static constexpr int MostTicks = 120;

    enum Cell : quint8 {
        Free,      ///< a move could start
        Start,     ///< of a move, before its first attack box
        Active,    ///< has an attack box
        Recovery,  ///< after it
        Stun,      ///< hit or guarded, and the consequences
        Busy       ///< jump start, landing, in the air and similar
    };

    /// A letter for each cell, for users who cannot tell the colours apart: "." "S" "A" "R" "X"
    /// "-".
    static QChar letter(Cell cell);

    /// The frame data of the last move of a fighter.
    struct Numbers
    {
        int start = 0;
        int active = 0;
        int recovery = 0;
    };

    explicit FrameMeter(const Rules::Game& game) : m_game(game) {}

    /// Adds the state of a tick. If it is not later than the last one, removes the cells since then
    /// first.
    void see(const Rules::State& state);
    void clear();

    /// The cells, oldest first. After both fighters were free for a while nothing is added, so that
    /// the last exchange stays readable.
    const QVector<Cell>& cells(int fighter) const { return m_cells[fighter]; }

    /// The frame data of the last move in the cells.
    Numbers numbers(int fighter) const;

    /// How many ticks earlier than the second fighter the first one was free, when both last became
    /// free. Valid if `hasAdvantage()`.
    int advantage() const;
    bool hasAdvantage() const;

private:
    Cell cellOf(const Rules::State& state, int fighter) const;

    const Rules::Game& m_game;
    QVector<Cell> m_cells[2];
    QVector<int> m_ticks;  // tick of the state of each cell
};

}  // namespace Player
