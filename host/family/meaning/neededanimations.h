#pragma once

#include <QString>
#include <QStringList>

namespace Family {

/// What an engine shows without being told by a move, in the order of the table.
enum class AnimationRole : unsigned char {
    Stance,
    Turn,
    GoingDown,
    Crouched,
    ComingUp,
    TurnCrouched,
    Walk,
    WalkBack,
    Run,
    HopBack,
    RunEnd,
    JumpStart,
    Jump,
    JumpForward,
    JumpBack,
    Landing,
    Guard,
    GuardCrouched,
    GuardInAir,
    GuardedHit,
    GuardedHitCrouched,
    HitHighLight,
    HitHighHeavy,
    HitMiddleLight,
    HitMiddleHeavy,
    HitCrouchedLight,
    HitCrouchedHeavy,
    HitInAir,
    ThrownUp,
    Falling,
    Bounce,
    Lying,
    GettingUp,
    RecoveryInAir,
    Dizzy,
    KnockedOut,
    Held,
    Thrown,
    Intro,
    Win1,
    Win2,
    Lose
};

constexpr int AnimationRoleCount = int(AnimationRole::Lose) + 1;

/// One animation that an engine looks for by its identifier: a row of the table.
struct NeededAnimation
{
    static constexpr int Nothing = -1;

    AnimationRole role;
    const char* identifier;
    bool isBasic;    ///< a character should have it; for the others something else will do
    int substitute;  ///< the role that is shown in its place, or `Nothing`
};

const NeededAnimation& neededAnimation(AnimationRole role);

/// The basic animations that a character with these identifiers lacks. None for one that does not
/// even have a stance: nobody has begun to make it for an engine.
QStringList missingBasics(const QStringList& identifiers);

}  // namespace Family
