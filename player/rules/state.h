#pragma once

#include "rules/fighterdata.h"

#include <type_traits>

namespace Rules {

/// What is held in a tick, of both: directions of the screen and buttons. The bits are those of
/// `Family::MotionStep`, with right in the place of forward.
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

/// How a move has met the other one.
enum class Touch : qint32 { None, Guarded, Hit };

/// One fighter in one tick. Places are counted from the middle of the stage's own coordinates in
/// x, and from its floor in y, upward negative.
struct FighterState
{
    static constexpr int HistoryTicks = 600;

    Fixed x;
    Fixed y;
    Fixed velocityX;
    Fixed velocityY;
    Fixed recoil;   ///< slides back from a hit at the end of the stage
    qint32 facing;  ///< 1 to the right, -1 to the left
    qint32 life;
    qint32 power;
    qint32 wins;
    Action action;
    qint32 actionTick;
    qint32 isInAir;
    qint32 animation;  ///< of `FighterData::animations`; -1 for none
    qint32 frame;
    qint32 frameTick;
    qint32 nextAnimation;  ///< what is shown when a pass is over; -1 to go on
    qint32 move;           ///< of `FighterData::moves`, in `Action::Move`; else `Move::None`
    qint32 isAirMove;      ///< it was started in the air
    qint32 hitsLeft;       ///< of the move
    qint32 lastHitFrame;
    Touch touch;
    qint32 jump;          ///< 0 neutral, 1 forward, 2 back
    qint32 stop;          ///< ticks of hit stop to come
    qint32 stun;          ///< ticks of stun to come
    qint32 isCrouched;    ///< in a stun
    qint32 isThrown;      ///< the fall is that of a throw
    qint32 combo;         ///< hits that it has taken without being free since
    qint32 comboDamage;   ///< and their damage
    qint32 commandTicks;  ///< for as long a command may be true; behind that none is
    quint8 commands[FighterData::MostCommands];  ///< ticks for which each is true
    quint8 history[HistoryTicks];                ///< `Inputs::signs` of the last ticks, a ring
};

enum class Phase : qint32 { Intro, Fight, RoundOver, Victory, MatchOver };

/// Something that is seen or heard once.
struct Event
{
    enum Kind : qint32 { None, Hit, Guarded, Started, Landed, RoundWon };

    Kind kind;
    qint32 fighter;  ///< who did it; -1 for both
    qint32 move;     ///< of that fighter, or -1
    qint32 x;        ///< of a spark, in pixels
    qint32 y;
};

/// A match in one tick: a plain value. Copy it to go back to it.
struct State
{
    static constexpr int MostEvents = 8;

    qint32 tick;
    Phase phase;
    qint32 phaseTick;
    qint32 round;   ///< from 0
    qint32 clock;   ///< ticks that are left of the round; -1 without end
    qint32 winner;  ///< of the last round, or of the match; -1 for a draw or none yet
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

/// A number that is the same for equal states on every machine, and most likely another one for any
/// other state.
quint64 hashOf(const State& state);

}  // namespace Rules
