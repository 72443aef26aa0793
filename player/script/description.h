#pragma once

#include <QByteArray>
#include <QString>

namespace Rules {
enum class Action : qint32;
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// The name of an action, such as "guarded-hit".
QString actionName(Rules::Action action);

/// A state on one line: a JSON object, or columns separated by tabs. Without a line end.
QByteArray jsonOf(const Rules::Game& game, const Rules::State& state);
QByteArray textOf(const Rules::Game& game, const Rules::State& state);

}  // namespace Player
