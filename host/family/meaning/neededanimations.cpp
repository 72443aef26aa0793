#include "family/meaning/neededanimations.h"

#include "family/tableorder.h"

namespace Family {

namespace {

using Role = AnimationRole;
constexpr int none = NeededAnimation::Nothing;

// clang-format off
constexpr NeededAnimation rows[] = {
    {Role::Stance, "10", true, none},
    {Role::Turn, "11", false, none},
    {Role::GoingDown, "12", false, none},
    {Role::Crouched, "13", true, int(Role::Stance)},
    {Role::ComingUp, "14", false, none},
    {Role::TurnCrouched, "15", false, none},
    {Role::Walk, "20", true, int(Role::Stance)},
    {Role::WalkBack, "21", false, int(Role::Walk)},
    {Role::Run, "22", false, int(Role::Walk)},
    {Role::HopBack, "23", false, int(Role::JumpBack)},
    {Role::RunEnd, "24", false, none},
    {Role::JumpStart, "30", false, int(Role::Crouched)},
    {Role::Jump, "31", true, int(Role::Stance)},
    {Role::JumpForward, "32", false, int(Role::Jump)},
    {Role::JumpBack, "33", false, int(Role::Jump)},
    {Role::Landing, "34", false, int(Role::Crouched)},
    {Role::Guard, "40", true, int(Role::Stance)},
    {Role::GuardCrouched, "41", false, int(Role::Crouched)},
    {Role::GuardInAir, "42", false, int(Role::Guard)},
    {Role::GuardedHit, "43", false, int(Role::Guard)},
    {Role::GuardedHitCrouched, "44", false, int(Role::GuardCrouched)},
    {Role::HitHighLight, "50", true, int(Role::Stance)},
    {Role::HitHighHeavy, "51", false, int(Role::HitHighLight)},
    {Role::HitMiddleLight, "52", false, int(Role::HitHighLight)},
    {Role::HitMiddleHeavy, "53", false, int(Role::HitHighHeavy)},
    {Role::HitCrouchedLight, "54", false, int(Role::HitMiddleLight)},
    {Role::HitCrouchedHeavy, "55", false, int(Role::HitMiddleHeavy)},
    {Role::HitInAir, "56", false, int(Role::Falling)},
    {Role::ThrownUp, "57", false, int(Role::Falling)},
    {Role::Falling, "58", true, int(Role::HitHighLight)},
    {Role::Bounce, "59", false, none},
    {Role::Lying, "60", true, int(Role::Falling)},
    {Role::GettingUp, "61", false, int(Role::Lying)},
    {Role::RecoveryInAir, "62", false, none},
    {Role::Dizzy, "63", false, int(Role::HitHighLight)},
    {Role::KnockedOut, "64", false, int(Role::Lying)},
    {Role::Held, "65", false, int(Role::HitHighLight)},
    {Role::Thrown, "66", false, int(Role::ThrownUp)},
    {Role::Intro, "intro", false, int(Role::Stance)},
    {Role::Win1, "win-1", false, int(Role::Stance)},
    {Role::Win2, "win-2", false, int(Role::Win1)},
    {Role::Lose, "lose", false, int(Role::Stance)},
};
// clang-format on

static_assert(sizeof rows / sizeof *rows == AnimationRoleCount &&
                  isInOrder(rows, &NeededAnimation::role),
              "a row for each role, in the order of the roles");

}  // namespace

const NeededAnimation& neededAnimation(AnimationRole role)
{
    return rows[int(role)];
}

QStringList missingBasics(const QStringList& identifiers)
{
    QStringList missing;
    if (!identifiers.contains(QLatin1String(neededAnimation(Role::Stance).identifier))) {
        return missing;
    }
    for (const NeededAnimation& row : rows) {
        if (row.isBasic && !identifiers.contains(QLatin1String(row.identifier))) {
            missing.append(QLatin1String(row.identifier));
        }
    }
    return missing;
}

}  // namespace Family
