#pragma once

#include "rules/state.h"

#include <QCoreApplication>

#include <functional>

namespace Player {

/// A text with the inputs of both players, tick by tick.
///
/// A line is a number of ticks and what each player holds during them, as in `20 F+L -`. Directions
/// are relative to the fighter: forward is where it looks. `places X X`, `life N N` and `power N N`
/// set both fighters. `#` starts a comment.
class Script
{
    Q_DECLARE_TR_FUNCTIONS(Player::Script)

public:
    static constexpr int MostTicks = 1000000;

    /// Parses a script. False, with `error` for the user, if it is invalid.
    bool read(const QString& text, QString* error);

    /// Plays the script starting from a state. `see` receives every tick; returning false ends it
    /// early.
    void run(const Rules::Game& game, Rules::State* state,
             const std::function<bool(const Rules::State&)>& see) const;

private:
    struct Line
    {
        enum Kind { Hold, Places, Life, Power };

        Kind kind = Hold;
        int ticks = 0;
        quint8 signs[2] = {0, 0};
        int numbers[2] = {0, 0};
    };

    bool readLine(const QString& text, Line* line) const;
    void set(const Rules::Game& game, const Line& line, Rules::State* state) const;

    QVector<Line> m_lines;
};

}  // namespace Player
