#pragma once

#include <QChar>
#include <QVector>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// What each fighter was in during the last ticks, and what came of the last meeting.
///
/// All of it is read from states, so it is what has happened, and not what a text promises. Hit
/// stops do not count: nothing goes on in them.
class FrameMeter
{
public:
    static constexpr int MostTicks = 120;

    enum Cell : quint8 {
        Free,      ///< a move could start
        Start,     ///< of a move, before its first attack box
        Active,    ///< an attack box is there
        Recovery,  ///< behind it
        Stun,      ///< hit or guarded, and what follows from it
        Busy       ///< before a jump, landing, in the air and the like
    };

    /// A letter for each, for those who do not tell colours apart: "." "S" "A" "R" "X" "-".
    static QChar letter(Cell cell);

    /// The numbers of the last move of a fighter.
    struct Numbers
    {
        int start = 0;
        int active = 0;
        int recovery = 0;
    };

    explicit FrameMeter(const Rules::Game& game) : m_game(game) {}

    /// Takes the state of a tick over. One that is not later than the last one takes back what was
    /// seen since.
    void see(const Rules::State& state);
    void clear();

    /// The oldest first. While both are free for long nothing is added, so that what has happened
    /// can be read.
    const QVector<Cell>& cells(int fighter) const { return m_cells[fighter]; }

    /// Of the last move in the cells.
    Numbers numbers(int fighter) const;

    /// By how many ticks the first fighter was free earlier than the second one when both last came
    /// to be free; valid if `hasAdvantage()`.
    int advantage() const;
    bool hasAdvantage() const;

private:
    Cell cellOf(const Rules::State& state, int fighter) const;

    const Rules::Game& m_game;
    QVector<Cell> m_cells[2];
    QVector<int> m_ticks;  // of the state of each cell
};

}  // namespace Player
