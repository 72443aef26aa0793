#include "rules/bout.h"

#include <algorithm>

// Both fighters are tested before anything is applied, so the result does not depend on their
// order. If both hit in the same tick, the move with the higher priority wins. With equal priority
// both hit, except two throws: they cancel each other.

namespace Rules {

using Family::AnimationRole;
using Family::MotionStep;

namespace {

constexpr int HeavyStun = 20;
constexpr Fixed FallSpeed = -3 * One;

bool overlap(const Box& one, const Box& other, const FighterState& own, const FighterState& their)
{
    const qint32 x = pixelOf(own.x) - pixelOf(their.x);
    const qint32 y = pixelOf(own.y) - pixelOf(their.y);
    const qint32 left = x + (own.facing > 0 ? one.left : -one.right);
    const qint32 right = x + (own.facing > 0 ? one.right : -one.left);
    const qint32 theirLeft = their.facing > 0 ? other.left : -other.right;
    const qint32 theirRight = their.facing > 0 ? other.right : -other.left;
    return left <= theirRight && theirLeft <= right && y + one.top <= other.bottom &&
           other.top <= y + one.bottom;
}

bool canBeThrown(const FighterState& own)
{
    if (own.action == Action::Held) {
        return true;
    }
    if (own.isInAir) {
        return false;
    }
    return isFree(own) || own.action == Action::Landing || own.action == Action::Move;
}

bool canBeHit(const FighterState& own)
{
    switch (own.action) {
    case Action::Bounce:
    case Action::Lying:
    case Action::GettingUp:
    case Action::Pose:
        return false;
    default:
        return true;
    }
}

bool meet(const Bout& bout, int attacker)
{
    const FighterState& own = bout.fighter(attacker);
    const FighterState& their = bout.fighter(1 - attacker);
    const Frame* frame = frameOf(bout, attacker);
    const Frame* other = frameOf(bout, 1 - attacker);
    const auto meetsAny = [&](const Box& body) {
        return std::any_of(frame->attack.cbegin(), frame->attack.cend(),
                           [&](const Box& attack) { return overlap(attack, body, own, their); });
    };
    return other ? std::any_of(other->body.cbegin(), other->body.cend(), meetsAny)
                 : meetsAny(bout.data(1 - attacker).push);
}

/// The move with which a fighter hits in this tick; null if it does not.
const Move* hitOf(const Bout& bout, int attacker)
{
    const FighterState& own = bout.fighter(attacker);
    const FighterState& their = bout.fighter(1 - attacker);
    if (own.action != Action::Move || own.hitsLeft == 0 || bout.stands[attacker] ||
        own.frame == own.lastHitFrame) {
        return nullptr;
    }
    const Frame* frame = frameOf(bout, attacker);
    if (!frame || frame->attack.isEmpty() || !canBeHit(their)) {
        return nullptr;
    }
    const Move& move = bout.data(attacker).moves.at(own.move);
    if (move.hit.level == HitLevel::Throw && !canBeThrown(their)) {
        return nullptr;
    }
    return meet(bout, attacker) ? &move : nullptr;
}

bool guards(const Bout& bout, int index, HitLevel level)
{
    const FighterState& own = bout.fighter(index);
    const FighterState& attacker = bout.fighter(1 - index);
    const bool isHeld = own.action == Action::GuardedHit;
    if (level == HitLevel::Throw || !(isHeld || isFree(own)) || bout.state.phase != Phase::Fight) {
        return false;
    }
    const quint8 held = own.history[bout.state.tick % FighterState::HistoryTicks];
    const int away = own.x != attacker.x ? (own.x > attacker.x ? 1 : -1) : -own.facing;
    if (!isHeld && (held & (away > 0 ? Inputs::Right : Inputs::Left)) == 0) {
        return false;
    }
    const bool isLow = (held & Inputs::Down) != 0;
    return own.isInAir || level == HitLevel::Middle || (level == HitLevel::Low) == isLow;
}

/// A hit about to be applied, with the situation in which it connected.
struct Meeting
{
    const Move* move = nullptr;
    int index = Move::None;  ///< index of the move
    int frame = 0;           ///< the frame that hits
    bool isGuarded = false;
    bool isFromFloor = false;
};

int damageOf(const Bout& bout, int attacker, const Meeting& meeting)
{
    const FighterData& data = bout.data(attacker);
    const FighterState& their = bout.fighter(1 - attacker);
    const Hit& hit = meeting.move->hit;
    const int base = meeting.isGuarded ? hit.guardDamage : hit.damage;
    if (base == 0) {
        return 0;
    }
    qint64 damage = qint64(base) * data.attack / bout.data(1 - attacker).defence;
    if (!meeting.isGuarded && !data.combo.isEmpty()) {
        damage = damage * data.combo.at(qMin(their.combo, data.combo.size() - 1)) / 100;
    }
    return int(qMin(qMax(damage, qint64(1)), qint64(their.life)));
}

void gain(const Bout& bout, int index, int power, FighterState* own)
{
    own->power = qMin(own->power + power, bout.data(index).power);
}

/// Pushes the opponent, or the attacker if the opponent is at the end of the stage.
void push(Bout& bout, int attacker, const Meeting& meeting)
{
    FighterState& own = bout.fighter(attacker);
    FighterState& their = bout.fighter(1 - attacker);
    const FighterData& data = bout.data(1 - attacker);
    const StageData& stage = bout.game.stage;
    // An opponent that was jumped over is pushed the other way.
    const int away = their.x != own.x ? (their.x > own.x ? 1 : -1) : own.facing;
    const Fixed speed = away * meeting.move->hit.pushX;
    const bool looksRight = their.facing > 0;
    const Fixed left = (stage.left + (looksRight ? data.backWidth : data.frontWidth) + 1) * One;
    const Fixed right = (stage.right - (looksRight ? data.frontWidth : data.backWidth) - 1) * One;
    const bool isAtEnd = speed < 0 ? their.x <= left : their.x >= right;
    their.velocityX = isAtEnd ? 0 : speed;
    if (isAtEnd && meeting.isFromFloor) {
        own.recoil = -speed;
    }
}

void guard(Bout& bout, int index, const Hit& hit)
{
    FighterState& own = bout.fighter(index);
    const quint8 held = own.history[bout.state.tick % FighterState::HistoryTicks];
    own.isCrouched = !own.isInAir && (held & Inputs::Down) != 0;
    own.stun = hit.guardStun;
    bout.enter(index, Action::GuardedHit);
    bout.showRole(index, own.isInAir      ? AnimationRole::GuardInAir
                         : own.isCrouched ? AnimationRole::GuardedHitCrouched
                                          : AnimationRole::GuardedHit);
}

void fall(Bout& bout, int index, const Hit& hit)
{
    FighterState& own = bout.fighter(index);
    const bool isThrow = hit.level == HitLevel::Throw;
    const bool keepsDown = own.isInAir && hit.pushY > 0;
    own.velocityY = hit.pushY < 0 || keepsDown ? hit.pushY : FallSpeed;
    const bool rises = own.velocityY < FallSpeed;
    own.isInAir = 1;
    own.isThrown = isThrow;
    own.stun = hit.stun;
    bout.enter(index, Action::Fall);
    bout.showRole(index, isThrow ? AnimationRole::Thrown
                         : rises ? AnimationRole::ThrownUp
                                 : AnimationRole::HitInAir);
}

void stagger(Bout& bout, int index, const Hit& hit, bool wasCrouched)
{
    static constexpr AnimationRole shown[][2] = {
        {AnimationRole::HitHighLight, AnimationRole::HitHighHeavy},
        {AnimationRole::HitMiddleLight, AnimationRole::HitMiddleHeavy},
        {AnimationRole::HitCrouchedLight, AnimationRole::HitCrouchedHeavy}};
    FighterState& own = bout.fighter(index);
    own.isCrouched = wasCrouched;
    own.stun = hit.stun;
    const int row = wasCrouched ? 2 : hit.level == HitLevel::High ? 0 : 1;
    bout.enter(index, Action::Hit);
    bout.showRole(index, shown[row][hit.stun >= HeavyStun]);
}

void strike(Bout& bout, int index, const Move& move)
{
    FighterState& own = bout.fighter(index);
    const Hit& hit = move.hit;
    const bool wasCrouched =
        own.action == Action::Crouch || (own.action == Action::Hit && own.isCrouched);
    ++own.combo;
    if (hit.level == HitLevel::Throw && move.follower >= 0 && own.life > 0) {
        own.stun = hit.stun;
        bout.enter(index, Action::Held);
        bout.showRole(index, AnimationRole::Held);
    } else if (own.life == 0 || own.isInAir || hit.falls) {
        fall(bout, index, hit);
    } else {
        stagger(bout, index, hit, wasCrouched);
    }
}

void apply(Bout& bout, int attacker, const Meeting& meeting)
{
    const int victim = 1 - attacker;
    const Hit& hit = meeting.move->hit;
    FighterState& own = bout.fighter(attacker);
    FighterState& their = bout.fighter(victim);
    const int damage = damageOf(bout, attacker, meeting);
    const int move = meeting.index;
    --own.hitsLeft;
    own.lastHitFrame = meeting.frame;
    if (own.touch != Touch::Hit) {
        own.touch = meeting.isGuarded ? Touch::Guarded : Touch::Hit;
    }
    gain(bout, attacker, meeting.isGuarded ? hit.guardGain : hit.gain, &own);
    gain(bout, victim, damage / 2, &their);
    their.life -= damage;
    own.stop = qMax(own.stop, hit.stop);
    their.stop = own.stop;
    push(bout, attacker, meeting);
    if (meeting.isGuarded && their.life > 0) {
        guard(bout, victim, hit);
    } else {
        their.comboDamage += damage;
        strike(bout, victim, *meeting.move);
        bout.state.shakeFighter = hit.shake.isEmpty() ? bout.state.shakeFighter : attacker;
        bout.state.shakeMove = hit.shake.isEmpty() ? bout.state.shakeMove : move;
        bout.state.shakeTick = 0;
    }
    bout.tell(meeting.isGuarded ? Event::Guarded : Event::Hit, attacker, move,
              pixelOf(own.x) + own.facing * hit.spark.x(), pixelOf(own.y) + hit.spark.y());
}

bool isThrow(const Meeting& meeting)
{
    return meeting.move && meeting.move->hit.level == HitLevel::Throw;
}

}  // namespace

void hitFighters(Bout& bout)
{
    if (bout.state.phase != Phase::Fight) {
        return;
    }
    Meeting meetings[2];
    for (int i = 0; i < 2; ++i) {
        meetings[i].move = hitOf(bout, i);
        meetings[i].index = bout.fighter(i).move;
        meetings[i].frame = bout.fighter(i).frame;
        meetings[i].isFromFloor = !bout.fighter(i).isInAir;
        meetings[i].isGuarded =
            meetings[i].move && guards(bout, 1 - i, meetings[i].move->hit.level);
    }
    if (meetings[0].move && meetings[1].move) {
        const int first = meetings[0].move->priority;
        const int second = meetings[1].move->priority;
        if (isThrow(meetings[0]) && isThrow(meetings[1])) {
            meetings[0].move = nullptr;
            meetings[1].move = nullptr;
        } else if (first != second) {
            meetings[first > second ? 1 : 0].move = nullptr;
        }
    }
    for (int i = 0; i < 2; ++i) {
        if (meetings[i].move) {
            apply(bout, i, meetings[i]);
        }
    }
}

}  // namespace Rules
