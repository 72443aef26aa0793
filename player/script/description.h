#pragma once

#include <QByteArray>
#include <QString>

namespace Rules {
enum class Action : qint32;
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// A word for what a fighter does, as in "guarded-hit".
QString actionName(Rules::Action action);

/// A state on one line: an object of JSON, or texts with tabs between. Without a line end.
QByteArray jsonOf(const Rules::Game& game, const Rules::State& state);
QByteArray textOf(const Rules::Game& game, const Rules::State& state);

}  // namespace Player
