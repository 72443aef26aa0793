#include "rules/movefacts.h"

#include "rules/gamereader.h"
#include "rules/tick.h"

// The facts are measured by playing the move in the real rules, against the same character on a
// very wide stage. Alone: without gravity, the ticks with attack boxes are counted until the move
// ends. Hit and guarded: from the nearest distance at which both can stand, the distance is
// increased until the move connects. The advantage is the difference between the ticks in which
// both become free.

namespace Rules {

namespace {

constexpr int Far = 20000;
constexpr int Farthest = 400;
constexpr int DistanceStep = 4;
constexpr int EnoughLife = 1000000000;

/// The character against itself, on a stage without ends.
Game mirrorGame(const FighterData& data)
{
    Game game;
    game.hasIntro = false;
    for (FighterData& fighter : game.fighters) {
        fighter = data;
        fighter.life = EnoughLife;
    }
    game.stage.left = -30000;
    game.stage.right = 30000;
    game.stage.screenWidth = 60000;
    game.stage.seconds = 0;
    completeGame(&game);
    return game;
}

State startOf(const Game& game, int move, int distance)
{
    State state = firstState(game);
    state.fighters[0].x = 0;
    state.fighters[0].power = game.fighters[0].power;
    state.fighters[1].x = distance * One;
    const Move& data = game.fighters[0].moves.at(move);
    const bool startsInAir = data.air == Air::Only || data.from == From::Fall;
    state.fighters[0].isInAir = startsInAir;
    state.fighters[0].y = startsInAir ? -1000 * One : 0;
    forceMove(game, 0, move, &state);
    return state;
}

bool isAttacking(const Game& game, const FighterState& own)
{
    return own.animation >= 0 &&
           !game.fighters[0].animations.at(own.animation).frames.at(own.frame).attack.isEmpty();
}

void playAlone(Game game, int move, MoveFacts* facts)
{
    game.gravity[0] = 0;
    State state = startOf(game, move, Far);
    const int animation = state.fighters[0].animation;
    bool wasAttacking = false;
    int last = -1;
    for (int at = 0; at < MoveFacts::MostTicks && state.fighters[0].move == move; ++at) {
        const FighterState& own = state.fighters[0];
        const bool attacks = own.animation == animation && isAttacking(game, own);
        if (attacks && !wasAttacking) {
            facts->active.append({at, 0});
        }
        if (attacks) {
            ++facts->active.last().ticks;
            last = at;
        }
        wasAttacking = attacks;
        facts->total = at + 1;
        tick(game, {}, &state);
    }
    facts->start = facts->active.isEmpty() ? facts->total : facts->active.first().tick;
    facts->recovery = facts->active.isEmpty() ? 0 : facts->total - last - 1;
}

bool hasEvent(const State& state, Event::Kind kind)
{
    for (int i = 0; i < state.eventCount; ++i) {
        if (state.events[i].kind == kind && state.events[i].fighter == 0) {
            return true;
        }
    }
    return false;
}

/// The opponent guards exactly in the ticks in which it would be hit.
void tickGuarded(const Game& game, HitLevel level, State* state)
{
    State look = *state;
    tick(game, {}, &look);
    Inputs inputs;
    if (hasEvent(look, Event::Hit)) {
        inputs.signs[1] = Inputs::Right;
        inputs.signs[1] |= level == HitLevel::Low ? Inputs::Down : 0;
    }
    tick(game, inputs, state);
}

MoveFacts::Meeting meetAt(const Game& game, int move, int distance, bool isGuarded)
{
    State state = startOf(game, move, distance);
    const Event::Kind wanted = isGuarded ? Event::Guarded : Event::Hit;
    const HitLevel level = game.fighters[0].moves.at(move).hit.level;
    MoveFacts::Meeting meeting;
    int freed[2] = {-1, -1};
    for (int at = 0; at < MoveFacts::MostTicks && (freed[0] < 0 || freed[1] < 0); ++at) {
        meeting.hits += hasEvent(state, wanted);
        if (isGuarded && hasEvent(state, Event::Hit)) {
            return {};
        }
        meeting.falls = meeting.falls || state.fighters[1].action == Action::Fall;
        for (int i = 0; i < 2; ++i) {
            freed[i] = !isFree(state.fighters[i]) ? -1 : freed[i] < 0 ? at : freed[i];
        }
        if (freed[0] >= 0 && meeting.hits == 0) {
            return {};
        }
        isGuarded ? tickGuarded(game, level, &state) : tick(game, {}, &state);
    }
    meeting.isMet = freed[0] >= 0 && freed[1] >= 0;
    meeting.advantage = freed[1] - freed[0];
    meeting.damage = EnoughLife - state.fighters[1].life;
    return meeting;
}

MoveFacts::Meeting meet(const Game& game, int move, bool isGuarded)
{
    const FighterData& data = game.fighters[0];
    const int nearest = qMax(2 * data.push.right + 1, 1);
    for (int distance = nearest; distance <= nearest + Farthest; distance += DistanceStep) {
        const MoveFacts::Meeting meeting = meetAt(game, move, distance, isGuarded);
        if (meeting.isMet) {
            return meeting;
        }
    }
    return {};
}

}  // namespace

MoveFacts aloneFactsOf(const FighterData& data, int move)
{
    MoveFacts facts;
    const Move& own = data.moves.at(move);
    facts.isInAir = own.air == Air::Only || own.from == From::Fall;
    playAlone(mirrorGame(data), move, &facts);
    return facts;
}

MoveFacts factsOf(const FighterData& data, int move)
{
    MoveFacts facts = aloneFactsOf(data, move);
    const Game game = mirrorGame(data);
    const Move& own = data.moves.at(move);
    if (own.hasHit && !facts.isInAir && !facts.active.isEmpty()) {
        facts.hit = meet(game, move, false);
        if (own.hit.level != HitLevel::Throw) {
            facts.guard = meet(game, move, true);
        }
    }
    return facts;
}

}  // namespace Rules
