#include "script/description.h"

#include "rules/state.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace Player {

using Rules::FighterData;
using Rules::FighterState;
using Rules::Game;
using Rules::State;

namespace {

constexpr const char* actionNames[] = {"stand",   "crouch",      "walk", "walk-back", "run",
                                       "run-end", "hop",         "jump", "air",       "land",
                                       "guard",   "guarded-hit", "hit",  "fall",      "bounce",
                                       "lying",   "getting-up",  "held", "move",      "pose"};
static_assert(sizeof actionNames / sizeof *actionNames == int(Rules::Action::Pose) + 1,
              "a name for each action");

constexpr const char* phaseNames[] = {"intro", "fight", "round-over", "victory", "match-over"};
constexpr const char* eventNames[] = {"none", "hit", "guarded", "started", "landed", "round-won"};

QString hashText(const State& state)
{
    return QStringLiteral("%1").arg(Rules::hashOf(state), 16, 16, QLatin1Char('0'));
}

QString moveName(const FighterData& data, int move)
{
    return move >= 0 ? data.moves.at(move).name : QString();
}

QString animationName(const FighterData& data, const FighterState& fighter)
{
    return fighter.animation >= 0 ? data.animations.at(fighter.animation).identifier : QString();
}

QJsonObject fighterObject(const FighterData& data, const FighterState& fighter)
{
    QJsonObject object{{QStringLiteral("x"), fighter.x / double(Rules::One)},
                       {QStringLiteral("y"), fighter.y / double(Rules::One)},
                       {QStringLiteral("facing"),
                        fighter.facing > 0 ? QStringLiteral("right") : QStringLiteral("left")},
                       {QStringLiteral("life"), fighter.life},
                       {QStringLiteral("power"), fighter.power},
                       {QStringLiteral("wins"), fighter.wins},
                       {QStringLiteral("action"), actionName(fighter.action)},
                       {QStringLiteral("animation"), animationName(data, fighter)},
                       {QStringLiteral("frame"), fighter.frame},
                       {QStringLiteral("combo"), fighter.combo},
                       {QStringLiteral("stop"), fighter.stop},
                       {QStringLiteral("stun"), fighter.stun}};
    if (fighter.move >= 0) {
        object.insert(QStringLiteral("move"), moveName(data, fighter.move));
    }
    return object;
}

}  // namespace

QString actionName(Rules::Action action)
{
    return QLatin1String(actionNames[int(action)]);
}

QByteArray jsonOf(const Game& game, const State& state)
{
    QJsonArray events;
    for (int i = 0; i < state.eventCount; ++i) {
        const Rules::Event& event = state.events[i];
        QJsonObject object{{QStringLiteral("kind"), QLatin1String(eventNames[event.kind])},
                           {QStringLiteral("fighter"), event.fighter},
                           {QStringLiteral("x"), event.x},
                           {QStringLiteral("y"), event.y}};
        if (event.move >= 0) {
            object.insert(QStringLiteral("move"),
                          moveName(game.fighters[event.fighter], event.move));
        }
        events.append(object);
    }
    const QJsonArray fighters{fighterObject(game.fighters[0], state.fighters[0]),
                              fighterObject(game.fighters[1], state.fighters[1])};
    return QJsonDocument(
               QJsonObject{{QStringLiteral("tick"), state.tick},
                           {QStringLiteral("hash"), hashText(state)},
                           {QStringLiteral("phase"), QLatin1String(phaseNames[int(state.phase)])},
                           {QStringLiteral("round"), state.round},
                           {QStringLiteral("clock"), state.clock},
                           {QStringLiteral("winner"), state.winner},
                           {QStringLiteral("fighters"), fighters},
                           {QStringLiteral("events"), events}})
        .toJson(QJsonDocument::Compact);
}

QByteArray textOf(const Game& game, const State& state)
{
    QStringList parts{QString::number(state.tick), hashText(state),
                      QLatin1String(phaseNames[int(state.phase)])};
    for (int i = 0; i < 2; ++i) {
        const FighterState& fighter = state.fighters[i];
        const QString move = moveName(game.fighters[i], fighter.move);
        parts.append(QString::number(fighter.x / double(Rules::One)));
        parts.append(QString::number(fighter.y / double(Rules::One)));
        parts.append(QString::number(fighter.life));
        parts.append(move.isEmpty() ? actionName(fighter.action) : move);
    }
    return parts.join(QLatin1Char('\t')).toUtf8();
}

}  // namespace Player
