#include "rules/bout.h"

#include <cstring>

// The phases of a match: intro (until its animations end or a button is pressed), fight, round
// over, victory pose. Then comes the next fight, or the end of the match when someone has won
// enough rounds. A draw counts as a win for both.

namespace Rules {

using Family::AnimationRole;

namespace {

constexpr int TicksASecond = 60;
constexpr int AfterRoundTicks = 90;
constexpr int VictoryTicks = 120;
constexpr int MostIntroTicks = 300;
constexpr quint8 Buttons = Family::MotionStep::Buttons;

/// Puts the fighters at their places. From the round before they keep only life, power and wins.
void placeFighters(Bout& bout)
{
    const StageData& stage = bout.game.stage;
    for (int i = 0; i < 2; ++i) {
        FighterState& own = bout.fighter(i);
        const FighterState before = own;
        memset(&own, 0, sizeof own);
        own.x = stage.start[i] * One;
        own.life = before.life;
        own.power = before.power;
        own.wins = before.wins;
        memcpy(own.history, before.history, sizeof own.history);
        own.lastHitFrame = -1;
        const bool isLeft =
            stage.start[i] < stage.start[1 - i] || (stage.start[i] == stage.start[1 - i] && i == 0);
        own.facing = isLeft == stage.facesInward ? 1 : -1;
        bout.stand(i);
    }
    bout.state.clock = stage.seconds > 0 ? stage.seconds * TicksASecond : -1;
    bout.state.winner = -1;
    bout.state.isByTime = 0;
    bout.state.shakeFighter = -1;
}

void enterPhase(Bout& bout, Phase phase)
{
    bout.state.phase = phase;
    bout.state.phaseTick = 0;
}

void pose(Bout& bout, int index, AnimationRole role)
{
    bout.enter(index, Action::Pose);
    bout.showRole(index, role);
}

/// The length of a pose in ticks; 0 if it goes on forever.
int ticksOf(const Bout& bout, int index, AnimationRole role)
{
    const int animation = bout.data(index).animationOf(role);
    return animation < 0 ? 0 : bout.data(index).animations.at(animation).ticks;
}

void goOnWithIntro(Bout& bout)
{
    int ticks = 0;
    bool isSkipped = false;
    for (int i = 0; i < 2; ++i) {
        ticks = qMax(ticks, ticksOf(bout, i, AnimationRole::Intro));
        isSkipped = isSkipped || (bout.signs(i) & Buttons) != 0;
    }
    if (isSkipped || bout.state.phaseTick >= qMin(ticks, MostIntroTicks)) {
        enterPhase(bout, Phase::Fight);
        for (int i = 0; i < 2; ++i) {
            bout.stand(i);
            // The button that skips the intro must not start a move.
            bout.forgetCommands(i);
        }
    }
}

/// The winner when time is over: who has more of its life left, in proportion. -1 for a draw.
int winnerByTime(const Bout& bout)
{
    const qint64 first = qint64(bout.fighter(0).life) * bout.data(1).life;
    const qint64 second = qint64(bout.fighter(1).life) * bout.data(0).life;
    return first == second ? -1 : first > second ? 0 : 1;
}

void endRound(Bout& bout, int winner, bool isByTime)
{
    State& state = bout.state;
    for (int i = 0; i < 2; ++i) {
        bout.fighter(i).wins += winner < 0 || winner == i;
    }
    state.winner = winner;
    state.isByTime = isByTime;
    enterPhase(bout, Phase::RoundOver);
    bout.tell(Event::RoundWon, winner, Move::None, 0, 0);
}

void goOnWithFight(Bout& bout)
{
    State& state = bout.state;
    const bool firstIsOut = bout.fighter(0).life == 0;
    const bool secondIsOut = bout.fighter(1).life == 0;
    if (firstIsOut || secondIsOut) {
        endRound(bout, firstIsOut && secondIsOut ? -1 : firstIsOut ? 1 : 0, false);
        return;
    }
    state.clock -= state.clock > 0;
    if (state.clock == 0) {
        endRound(bout, winnerByTime(bout), true);
    }
}

void celebrate(Bout& bout)
{
    const State& state = bout.state;
    enterPhase(bout, Phase::Victory);
    for (int i = 0; i < 2 && state.winner >= 0; ++i) {
        FighterState& own = bout.fighter(i);
        if (own.isInAir || own.life == 0) {
            continue;
        }
        own.velocityX = 0;
        if (i == state.winner) {
            pose(bout, i, state.round % 2 == 0 ? AnimationRole::Win1 : AnimationRole::Win2);
        } else {
            pose(bout, i, AnimationRole::Lose);
        }
    }
}

/// The life of a fighter at the start of the next round.
int nextLife(const Bout& bout, int index)
{
    const FighterData& data = bout.data(index);
    if (bout.state.winner != index || data.recovery.isEmpty()) {
        return data.life;
    }
    const int share = data.recovery.at(qMin(bout.state.round, data.recovery.size() - 1));
    const qint64 given = qint64(data.life) * share / 65536;
    return int(qMin(qint64(bout.fighter(index).life) + given, qint64(data.life)));
}

void beginNextRound(Bout& bout)
{
    const int needed = bout.game.stage.rounds;
    const bool firstHasWon = bout.fighter(0).wins >= needed;
    const bool secondHasWon = bout.fighter(1).wins >= needed;
    if (firstHasWon || secondHasWon) {
        bout.state.winner = firstHasWon && secondHasWon ? -1 : firstHasWon ? 0 : 1;
        enterPhase(bout, Phase::MatchOver);
        return;
    }
    const int life[] = {nextLife(bout, 0), nextLife(bout, 1)};
    bout.fighter(0).life = life[0];
    bout.fighter(1).life = life[1];
    ++bout.state.round;
    placeFighters(bout);
    enterPhase(bout, Phase::Fight);
}

}  // namespace

State firstState(const Game& game)
{
    State state;
    memset(&state, 0, sizeof state);
    Bout bout(game, state);
    for (int i = 0; i < 2; ++i) {
        state.fighters[i].life = game.fighters[i].life;
    }
    placeFighters(bout);
    enterPhase(bout, Phase::Fight);
    if (game.hasIntro) {
        enterPhase(bout, Phase::Intro);
        pose(bout, 0, AnimationRole::Intro);
        pose(bout, 1, AnimationRole::Intro);
    }
    return state;
}

void goOnWithMatch(Bout& bout)
{
    State& state = bout.state;
    state.phaseTick = qMin(state.phaseTick + 1, Animation::MostTicks);
    if (state.shakeFighter >= 0) {
        const Move& move = bout.data(state.shakeFighter).moves.at(state.shakeMove);
        state.shakeFighter = ++state.shakeTick > move.hit.shake.size() ? -1 : state.shakeFighter;
    }
    switch (state.phase) {
    case Phase::Intro:
        goOnWithIntro(bout);
        break;
    case Phase::Fight:
        goOnWithFight(bout);
        break;
    case Phase::RoundOver:
        if (state.phaseTick >= AfterRoundTicks) {
            celebrate(bout);
        }
        break;
    case Phase::Victory:
        if (state.phaseTick >= VictoryTicks) {
            beginNextRound(bout);
        }
        break;
    case Phase::MatchOver:
        break;
    }
}

}  // namespace Rules
