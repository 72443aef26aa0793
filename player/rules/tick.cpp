#include "rules/tick.h"

#include "rules/bout.h"

#include <cstring>

namespace Rules {

using Family::AnimationRole;

bool isFree(const FighterState& fighter)
{
    switch (fighter.action) {
    case Action::Stand:
    case Action::Crouch:
    case Action::Walk:
    case Action::WalkBack:
    case Action::Run:
    case Action::RunEnd:
    case Action::Guard:
    case Action::Air:
        return true;
    default:
        return fighter.action == Action::Hop && fighter.isInAir != 0;
    }
}

quint8 Bout::signs(int index) const
{
    const FighterState& own = fighter(index);
    return mirrored(own.history[state.tick % FighterState::HistoryTicks], own.facing);
}

void Bout::show(int index, int animation)
{
    FighterState& own = fighter(index);
    own.animation = animation;
    own.frame = animation >= 0 ? data(index).animations.at(animation).first : 0;
    own.frameTick = 0;
    own.nextAnimation = -1;
}

void Bout::showRole(int index, AnimationRole role)
{
    show(index, data(index).animationOf(role));
}

void Bout::showAfter(int index, AnimationRole first, AnimationRole then)
{
    const int leading = data(index).animationOf(first);
    const int following = data(index).animationOf(then);
    show(index, leading >= 0 ? leading : following);
    fighter(index).nextAnimation = leading >= 0 ? following : -1;
}

void Bout::enter(int index, Action action)
{
    FighterState& own = fighter(index);
    own.action = action;
    own.actionTick = 0;
    own.move = Move::None;
}

void Bout::stand(int index)
{
    FighterState& own = fighter(index);
    own.combo = 0;
    own.comboDamage = 0;
    enter(index, own.isInAir ? Action::Air : Action::Stand);
    showRole(index, own.isInAir ? AnimationRole::Jump : AnimationRole::Stance);
}

void Bout::forgetCommands(int index)
{
    FighterState& own = fighter(index);
    memset(own.commands, 0, sizeof own.commands);
    own.commandTicks = 0;
}

void Bout::startMove(int index, int move)
{
    FighterState& own = fighter(index);
    const Move& next = data(index).moves.at(move);
    own.power = qMax(own.power - next.costPower, 0);
    own.life = qMax(own.life - next.costLife, 1);
    enter(index, Action::Move);
    own.move = move;
    own.isAirMove = own.isInAir;
    own.hitsLeft = next.hasHit ? next.hit.hits : 0;
    own.lastHitFrame = -1;
    own.touch = Touch::None;
    own.stun = 0;
    own.combo = 0;
    own.comboDamage = 0;
    if (next.hasVelocity || !own.isInAir) {
        own.velocityX = own.facing * next.velocityX;
        own.velocityY = next.velocityY;
        own.isInAir = own.isInAir != 0 || next.velocityY < 0;
    }
    forgetCommands(index);
    show(index, next.animation);
    tell(Event::Started, index, move, pixelOf(own.x), pixelOf(own.y));
}

void Bout::tell(Event::Kind kind, int index, int move, qint32 x, qint32 y)
{
    if (state.eventCount < State::MostEvents) {
        state.events[state.eventCount++] = {kind, index, move, x, y};
    }
}

const Frame* frameOf(const Bout& bout, int index)
{
    const FighterState& own = bout.fighter(index);
    return own.animation >= 0 ? &bout.data(index).animations.at(own.animation).frames.at(own.frame)
                              : nullptr;
}

void tick(const Game& game, const Inputs& inputs, State* state)
{
    Bout bout(game, *state);
    memset(state->events, 0, sizeof state->events);
    state->eventCount = 0;
    ++state->tick;
    takeInputs(bout, inputs);
    for (int i = 0; i < 2; ++i) {
        FighterState& own = bout.fighter(i);
        bout.stands[i] = own.stop > 0;
        own.stop -= bout.stands[i];
        if (!bout.stands[i]) {
            goOn(bout, i);
        }
    }
    seeThreats(bout);
    for (int i = 0; i < 2; ++i) {
        if (!bout.stands[i]) {
            decide(bout, i);
        }
    }
    moveFighters(bout);
    turnFighters(bout);
    hitFighters(bout);
    goOnWithMatch(bout);
}

void forceMove(const Game& game, int fighter, int move, State* state)
{
    Bout bout(game, *state);
    bout.startMove(fighter, move);
    hitFighters(bout);
}

}  // namespace Rules
