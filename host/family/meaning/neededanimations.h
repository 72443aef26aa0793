#pragma once

#include <QString>
#include <QStringList>

namespace Family {

/// The roles of animations that an engine shows without a move naming them, in table order.
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

/// An animation that engines look up by its identifier: a row of the table.
struct NeededAnimation
{
    static constexpr int Nothing = -1;

    AnimationRole role;
    const char* identifier;
    bool isBasic;    ///< every character should have it; the others can be substituted
    int substitute;  ///< the role shown instead, or `Nothing`
};

const NeededAnimation& neededAnimation(AnimationRole role);

/// The basic animations missing among these identifiers. Empty if even the stance is missing: then
/// the character has not been prepared for an engine yet.
QStringList missingBasics(const QStringList& identifiers);

}  // namespace Family
