#include "rules/bout.h"

// In every tick, goOn() first advances the animation and ends actions whose time is over. After
// that, decide() looks for a move. During a move this is a follower after a hit, a cancel after
// contact (at any time if the move has no hit), or in the first ticks a move with more buttons.
// Otherwise it is any move that fits the position. Of several moves with a complete command, the
// one with the most motion steps wins, then the one with the most buttons, then one that requires a
// state, then the one with the most directions. Without a move, a fighter who is free on the floor
// reacts to the held directions: jump, run, crouch, guard, walk, or stand.

namespace Rules {

using Family::AnimationRole;
using Family::MotionStep;

namespace {

constexpr int LyingTicks = 24;
constexpr int DizzyTicks = 40;

/// For this many ticks a move can still be replaced by one with more buttons.
constexpr int YieldTicks = 3;

/// An attack at this distance makes an opponent guard before it hits.
constexpr Fixed GuardDistance = 120 * One;

/// True at the end of a pass, or if a frame that stays is reached.
bool goOnWithAnimation(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    const Frame* frame = frameOf(bout, index);
    if (!frame || frame->data.delay <= 0) {
        return true;
    }
    if (++own.frameTick < frame->data.delay) {
        return false;
    }
    own.frame = frame->next;
    own.frameTick = 0;
    // A frame that stays is reached in the tick in which the pass ends.
    return frame->isLastShown || frameOf(bout, index)->data.delay <= 0;
}

void leaveFloor(Bout& bout, int index)
{
    static constexpr AnimationRole shown[] = {AnimationRole::Jump, AnimationRole::JumpForward,
                                              AnimationRole::JumpBack};
    FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    own.isInAir = 1;
    own.velocityX = own.facing * data.jumpX[own.jump];
    own.velocityY = data.jumpY[own.jump];
    bout.enter(index, Action::Air);
    bout.showRole(index, shown[own.jump]);
}

void lie(Bout& bout, int index)
{
    const bool isOut = bout.fighter(index).life == 0;
    bout.enter(index, Action::Lying);
    bout.showRole(index, isOut ? AnimationRole::KnockedOut : AnimationRole::Lying);
}

void goOnFalling(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    own.stun -= own.stun > 0;
    const int falling = bout.data(index).animationOf(AnimationRole::Falling);
    if (own.velocityY > 0 && !own.isThrown && own.animation != falling) {
        bout.show(index, falling);
    }
}

void goOnWithStun(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    if (own.stun == 0) {
        bout.stand(index);
        return;
    }
    --own.stun;
    if (own.action == Action::Hit && own.actionTick == DizzyTicks) {
        bout.showRole(index, AnimationRole::Dizzy);
    }
}

/// Ends an action with a fixed duration when its animation or its ticks are over.
void goOnWithAction(Bout& bout, int index, bool isShown)
{
    FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    switch (own.action) {
    case Action::JumpStart:
        if (own.actionTick >= data.jumpStart) {
            leaveFloor(bout, index);
        }
        break;
    case Action::Landing:
        if (own.actionTick >= data.jumpEnd) {
            bout.stand(index);
        }
        break;
    case Action::Move:
        if (isShown) {
            bout.stand(index);
        }
        break;
    case Action::Hop:
        if (isShown && !own.isInAir) {
            bout.stand(index);
        }
        break;
    case Action::GuardedHit:
    case Action::Hit:
    case Action::Held:
        goOnWithStun(bout, index);
        break;
    case Action::Fall:
        goOnFalling(bout, index);
        break;
    case Action::Bounce:
        if (isShown) {
            lie(bout, index);
        }
        break;
    case Action::Lying:
        if (own.life > 0 && own.actionTick >= LyingTicks) {
            bout.enter(index, Action::GettingUp);
            bout.showRole(index, AnimationRole::GettingUp);
        }
        break;
    case Action::GettingUp:
        if (isShown) {
            bout.stand(index);
        }
        break;
    default:
        break;
    }
}

bool isOnFloorAndFree(const FighterState& own)
{
    return isFree(own) && !own.isInAir;
}

/// Whether a move is allowed where the fighter is: on the floor or in the air.
bool fitsPlace(const FighterState& own, const Move& move)
{
    return own.isInAir ? move.air != Air::No : move.air != Air::Only;
}

/// Whether a move can start from the current action.
bool fits(const FighterData& data, const FighterState& own, const Move& move)
{
    // An up direction in the motion has already started the jump.
    if (own.action == Action::JumpStart) {
        return move.from == From::Any && move.air != Air::Only && move.command >= 0 &&
               data.commands.at(move.command).steps > 1;
    }
    const bool fitsAir = fitsPlace(own, move);
    switch (move.from) {
    case From::Any:
        return isFree(own) && fitsAir;
    case From::Stand:
        return isOnFloorAndFree(own) && fitsAir && own.action != Action::Crouch &&
               own.action != Action::Run;
    case From::Crouch:
        return own.action == Action::Crouch && fitsAir;
    case From::Run:
        return own.action == Action::Run && fitsAir;
    case From::Guard:
        return own.action == Action::GuardedHit && fitsAir;
    case From::Fall:
        return own.action == Action::Fall && own.stun == 0;
    }
    return false;
}

/// Whether the command was given and the fighter has enough power.
bool isAsked(const FighterState& own, const Move& move)
{
    return move.command >= 0 && own.commands[move.command] > 0 && own.power >= move.costPower;
}

/// True if `one` takes precedence over `other` when both are possible.
bool isBefore(const FighterData& data, const Move& one, const Move& other)
{
    const Command& first = data.commands.at(one.command);
    const Command& second = data.commands.at(other.command);
    if (first.steps != second.steps) {
        return first.steps > second.steps;
    }
    if (first.buttons != second.buttons) {
        return first.buttons > second.buttons;
    }
    if ((one.from != From::Any) != (other.from != From::Any)) {
        return one.from != From::Any;
    }
    return first.directions > second.directions;
}

void takeBetter(const Bout& bout, int index, int move, int* best)
{
    const FighterData& data = bout.data(index);
    if (isAsked(bout.fighter(index), data.moves.at(move)) &&
        (*best < 0 || isBefore(data, data.moves.at(move), data.moves.at(*best)))) {
        *best = move;
    }
}

int cancelOf(const Bout& bout, int index)
{
    const FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    const Move& move = data.moves.at(own.move);
    if (own.touch == Touch::Hit && move.follower >= 0) {
        const Move& follower = data.moves.at(move.follower);
        if (own.power >= follower.costPower && fitsPlace(own, follower)) {
            return move.follower;
        }
    }
    int best = Move::None;
    if (own.touch != Touch::None || !move.hasHit) {
        for (int next : move.cancels) {
            if (fitsPlace(own, data.moves.at(next))) {
                takeBetter(bout, index, next, &best);
            }
        }
    }
    return best;
}

/// A person never presses two buttons in exactly the same tick. So a move that the first button
/// started may be replaced.
int completedOf(const Bout& bout, int index)
{
    const FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    const Move& move = data.moves.at(own.move);
    if (own.actionTick >= YieldTicks || own.touch != Touch::None || move.command < 0 ||
        move.costPower > 0 || move.costLife > 0 || own.isInAir != own.isAirMove) {
        return Move::None;
    }
    int best = Move::None;
    for (int next = 0; next < data.moves.size(); ++next) {
        const Move& other = data.moves.at(next);
        if (other.command >= 0 && other.from == From::Any && fitsPlace(own, other) &&
            data.commands.at(other.command).buttons > data.commands.at(move.command).buttons) {
            takeBetter(bout, index, next, &best);
        }
    }
    return best;
}

int nextMove(const Bout& bout, int index)
{
    const FighterState& own = bout.fighter(index);
    if (own.action == Action::Move && own.touch == Touch::Hit &&
        bout.data(index).moves.at(own.move).follower >= 0) {
        return cancelOf(bout, index);
    }
    if (own.commandTicks == 0) {
        return Move::None;
    }
    if (own.action == Action::Move) {
        const int cancel = cancelOf(bout, index);
        return cancel >= 0 ? cancel : completedOf(bout, index);
    }
    int best = Move::None;
    const QVector<Move>& moves = bout.data(index).moves;
    for (int move = 0; move < moves.size(); ++move) {
        if (fits(bout.data(index), own, moves.at(move))) {
            takeBetter(bout, index, move, &best);
        }
    }
    return best;
}

bool isThreatened(const Bout& bout, int index)
{
    const FighterState& own = bout.fighter(index);
    const FighterState& other = bout.fighter(1 - index);
    if (other.action != Action::Move || other.hitsLeft == 0 || other.animation < 0) {
        return false;
    }
    return other.actionTick <= bout.data(1 - index).animations.at(other.animation).lastAttack &&
           qAbs(own.x - other.x) <= GuardDistance;
}

void startJump(Bout& bout, int index, quint8 signs)
{
    FighterState& own = bout.fighter(index);
    own.jump = signs & MotionStep::Forward ? 1 : signs & MotionStep::Back ? 2 : 0;
    own.velocityX = 0;
    bout.enter(index, Action::JumpStart);
    bout.showRole(index, AnimationRole::JumpStart);
}

void startHop(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    own.velocityX = own.facing * data.runBackX;
    own.velocityY = qMin(data.runBackY, 0);
    own.isInAir = own.velocityY < 0;
    own.commands[data.hopCommand] = 0;
    bout.enter(index, Action::Hop);
    bout.showRole(index, AnimationRole::HopBack);
}

/// Starts a run or hop, if its command was given.
bool dash(Bout& bout, int index, quint8 signs)
{
    FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    if (!data.hasRun) {
        return false;
    }
    if (data.hopCommand >= 0 && own.commands[data.hopCommand] > 0) {
        startHop(bout, index);
        return true;
    }
    const bool begins = data.runCommand >= 0 && own.commands[data.runCommand] > 0;
    const bool goes = own.action == Action::Run || begins;
    if (!goes || (signs & MotionStep::Directions) != MotionStep::Forward) {
        return false;
    }
    if (own.action != Action::Run) {
        bout.enter(index, Action::Run);
        bout.showRole(index, AnimationRole::Run);
    }
    own.velocityX = own.facing * data.runX;
    return true;
}

void walk(Bout& bout, int index, bool isForward)
{
    FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    const Action action = isForward ? Action::Walk : Action::WalkBack;
    if (own.action != action) {
        bout.enter(index, action);
        bout.showRole(index, isForward ? AnimationRole::Walk : AnimationRole::WalkBack);
    }
    own.velocityX = own.facing * (isForward ? data.walkForward : data.walkBack);
}

void crouch(Bout& bout, int index, bool guards)
{
    FighterState& own = bout.fighter(index);
    const FighterData& data = bout.data(index);
    own.velocityX = own.action == Action::Crouch ? own.velocityX : 0;
    const int guard = data.animationOf(AnimationRole::GuardCrouched);
    if (own.action != Action::Crouch) {
        bout.enter(index, Action::Crouch);
        bout.showAfter(index, AnimationRole::GoingDown, AnimationRole::Crouched);
    }
    if (guards && own.animation != guard) {
        bout.show(index, guard);
    } else if (!guards && own.animation == guard) {
        bout.showRole(index, AnimationRole::Crouched);
    }
}

void rest(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    if (own.action == Action::Crouch) {
        bout.enter(index, Action::Stand);
        bout.showAfter(index, AnimationRole::ComingUp, AnimationRole::Stance);
    } else if (own.action == Action::Run) {
        bout.enter(index, Action::RunEnd);
        bout.showAfter(index, AnimationRole::RunEnd, AnimationRole::Stance);
    } else if (own.action != Action::Stand && own.action != Action::RunEnd) {
        bout.enter(index, Action::Stand);
        bout.showRole(index, AnimationRole::Stance);
        own.velocityX = 0;
    } else if (own.action == Action::RunEnd && own.velocityX == 0) {
        own.action = Action::Stand;
    }
}

void stepOnFloor(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    const quint8 signs = bout.signs(index);
    const bool guards = (signs & MotionStep::Back) != 0 && bout.isThreatened[index];
    if (signs & MotionStep::Up) {
        startJump(bout, index, signs);
    } else if (dash(bout, index, signs)) {
        return;
    } else if (signs & MotionStep::Down) {
        crouch(bout, index, guards);
    } else if (guards) {
        if (own.action != Action::Guard) {
            bout.enter(index, Action::Guard);
            bout.showRole(index, AnimationRole::Guard);
            own.velocityX = 0;
        }
    } else if (signs & (MotionStep::Forward | MotionStep::Back)) {
        walk(bout, index, (signs & MotionStep::Forward) != 0);
    } else {
        rest(bout, index);
    }
}

}  // namespace

void goOn(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    own.actionTick = qMin(own.actionTick + 1, Animation::MostTicks);
    const bool isShown = goOnWithAnimation(bout, index);
    if (isShown && own.nextAnimation >= 0) {
        bout.show(index, own.nextAnimation);
    }
    goOnWithAction(bout, index, isShown);
}

void seeThreats(Bout& bout)
{
    for (int i = 0; i < 2; ++i) {
        bout.isThreatened[i] = isThreatened(bout, i);
    }
}

void decide(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    if (bout.state.phase != Phase::Fight || own.life == 0) {
        if (isOnFloorAndFree(own) && own.action != Action::Stand) {
            bout.stand(index);
        }
        return;
    }
    const int move = nextMove(bout, index);
    if (move >= 0) {
        bout.startMove(index, move);
    } else if (isOnFloorAndFree(own)) {
        stepOnFloor(bout, index);
    }
}

}  // namespace Rules
