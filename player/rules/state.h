#pragma once

#include "rules/fighterdata.h"

#include <type_traits>

namespace Rules {

/// What both players hold in a tick: screen directions and buttons. The bits are those of
/// `Family::MotionStep`, with right instead of forward.
struct Inputs
{
    static constexpr quint8 Up = 1;
    static constexpr quint8 Down = 2;
    static constexpr quint8 Right = 4;
    static constexpr quint8 Left = 8;

    quint8 signs[2] = {0, 0};
};

enum class Action : qint32 {
    Stand,
    Crouch,
    Walk,
    WalkBack,
    Run,
    RunEnd,
    Hop,
    JumpStart,
    Air,
    Landing,
    Guard,
    GuardedHit,
    Hit,
    Fall,
    Bounce,
    Lying,
    GettingUp,
    Held,
    Move,
    Pose
};

/// How a move has touched the opponent.
enum class Touch : qint32 { None, Guarded, Hit };

/// A fighter in one tick. x counts from the middle of the stage's own coordinates, y from its
/// floor; up is negative.
struct FighterState
{
    static constexpr int HistoryTicks = 600;

    Fixed x;
    Fixed y;
    Fixed velocityX;
    Fixed velocityY;
    Fixed recoil;   ///< speed of sliding back after a hit on an opponent at the end of the stage
    qint32 facing;  ///< 1 for right, -1 for left
    qint32 life;
    qint32 power;
    qint32 wins;
    Action action;
    qint32 actionTick;
    qint32 isInAir;
    qint32 animation;  ///< index in `FighterData::animations`; -1 for none
    qint32 frame;
    qint32 frameTick;
    qint32 nextAnimation;  ///< shown after this pass; -1 to go on
    qint32 move;           ///< index in `FighterData::moves` in `Action::Move`; else `Move::None`
    qint32 isAirMove;      ///< started in the air
    qint32 hitsLeft;       ///< hits left in the move
    qint32 lastHitFrame;
    Touch touch;
    qint32 jump;          ///< 0 neutral, 1 forward, 2 back
    qint32 stop;          ///< remaining ticks of hit stop
    qint32 stun;          ///< remaining ticks of stun
    qint32 isCrouched;    ///< during a stun
    qint32 isThrown;      ///< the fall is from a throw
    qint32 combo;         ///< hits taken without being free in between
    qint32 comboDamage;   ///< damage of those hits
    qint32 commandTicks;  ///< how long a command may still be true; after that none is
    quint8 commands[FighterData::MostCommands];  ///< remaining ticks for which each is true
    quint8 history[HistoryTicks];                ///< ring buffer of `Inputs::signs` of the last
                                                 ///< ticks
};

enum class Phase : qint32 { Intro, Fight, RoundOver, Victory, MatchOver };

/// A one-time event to see or hear.
struct Event
{
    enum Kind : qint32 { None, Hit, Guarded, Started, Landed, RoundWon };

    Kind kind;
    qint32 fighter;  ///< who caused it; -1 for both
    qint32 move;     ///< of that fighter, or -1
    qint32 x;        ///< of a spark, in pixels
    qint32 y;
};

/// A match in one tick: a plain value. Copy it to be able to go back.
struct State
{
    static constexpr int MostEvents = 8;

    qint32 tick;
    Phase phase;
    qint32 phaseTick;
    qint32 round;   ///< from 0
    qint32 clock;   ///< remaining ticks of the round; -1 without limit
    qint32 winner;  ///< of the last round or the match; -1 for a draw or none yet
    qint32 isByTime;
    qint32 shakeFighter;  ///< whose move shakes the screen; -1 for none
    qint32 shakeMove;
    qint32 shakeTick;
    qint32 eventCount;
    Event events[MostEvents];  ///< of this tick
    FighterState fighters[2];
};

static_assert(std::is_trivially_copyable_v<State> &&
                  std::has_unique_object_representations_v<State>,
              "two equal states have equal bytes");

/// A hash that is the same on every machine for equal states, and most likely different for
/// different ones.
quint64 hashOf(const State& state);

}  // namespace Rules
