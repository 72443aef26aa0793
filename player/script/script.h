#pragma once

#include "rules/state.h"

#include <QCoreApplication>

#include <functional>

namespace Player {

/// What two people do, tick by tick, as a text.
///
/// A line is a number of ticks and what each holds during them, as in `20 F+L -`; directions are
/// those of the fighter, forward where it looks. `places X X`, `life N N` and `power N N` set both
/// fighters. `#` begins a comment.
class Script
{
    Q_DECLARE_TR_FUNCTIONS(Player::Script)

public:
    static constexpr int MostTicks = 1000000;

    /// False, with `error` for the person, for a text that is none.
    bool read(const QString& text, QString* error);

    /// Plays it from a state on; `see` gets every tick. Ends early when it gives false.
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
