#include "rules/bout.h"

// Each fighter first moves by its own speed. Gravity works in the air, and friction on the floor
// except while walking or running. Then both are kept in the stage. Overlapping push boxes are
// separated, half each; what the end of the stage takes from one is given to the other. If both are
// too far apart for the screen, each is pulled back by half of the excess. All values are whole
// numbers, so that every machine computes the same.

namespace Rules {

using Family::AnimationRole;

namespace {

constexpr int FloorParts = 8;
constexpr int MoveParts = 16;
constexpr Fixed MostSpeed = 64 * One;

/// No regular data leads this high. The limit prevents integer overflow.
constexpr Fixed MostHeight = 8192 * One;

bool keepsSpeed(Action action)
{
    return action == Action::Walk || action == Action::WalkBack || action == Action::Run;
}

void fallDown(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    own.velocityX /= 2;
    const int bounce = bout.data(index).animationOf(AnimationRole::Bounce);
    bout.enter(index, bounce >= 0 ? Action::Bounce : Action::Lying);
    const bool isOut = own.life == 0;
    bout.show(index, bounce >= 0 ? bounce
                                 : bout.data(index).animationOf(isOut ? AnimationRole::KnockedOut
                                                                      : AnimationRole::Lying));
}

void land(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    own.y = 0;
    own.velocityY = 0;
    own.isInAir = 0;
    bout.tell(Event::Landed, index, Move::None, pixelOf(own.x), 0);
    if (own.action == Action::Fall) {
        fallDown(bout, index);
    } else if (own.action == Action::Air || own.action == Action::Hop ||
               (own.action == Action::Move && own.isAirMove)) {
        own.velocityX = 0;
        bout.enter(index, Action::Landing);
        bout.showRole(index, AnimationRole::Landing);
    }
}

void moveOne(Bout& bout, int index)
{
    FighterState& own = bout.fighter(index);
    own.x += own.velocityX + own.recoil;
    own.recoil = slowed(own.recoil, FloorParts);
    if (own.isInAir) {
        own.y = qMax(own.y + own.velocityY, -MostHeight);
        own.velocityY = qMin(own.velocityY + bout.game.gravity[index], MostSpeed);
        if (own.y >= 0 && own.velocityY >= 0) {
            land(bout, index);
        }
    } else if (!keepsSpeed(own.action)) {
        own.velocityX = slowed(own.velocityX, own.action == Action::Move ? MoveParts : FloorParts);
    }
}

/// A box at the position of a fighter.
Box placed(const Box& box, const FighterState& own)
{
    const qint32 x = pixelOf(own.x);
    const qint32 y = pixelOf(own.y);
    return own.facing > 0 ? Box{x + box.left, y + box.top, x + box.right, y + box.bottom}
                          : Box{x - box.right, y + box.top, x - box.left, y + box.bottom};
}

bool canBePushed(const FighterState& own)
{
    switch (own.action) {
    case Action::Fall:
    case Action::Bounce:
    case Action::Lying:
    case Action::Held:
    case Action::Pose:
        return false;
    default:
        return true;
    }
}

void keepInStage(const Bout& bout, int index, FighterState* own)
{
    const FighterData& data = bout.data(index);
    const StageData& stage = bout.game.stage;
    const bool looksRight = own->facing > 0;
    const Fixed left = (stage.left + (looksRight ? data.backWidth : data.frontWidth)) * One;
    const Fixed right = (stage.right - (looksRight ? data.frontWidth : data.backWidth)) * One;
    own->x = left > right ? left + (right - left) / 2 : qBound(left, own->x, right);
}

void pushApart(Bout& bout)
{
    FighterState& first = bout.fighter(0);
    FighterState& second = bout.fighter(1);
    if (!canBePushed(first) || !canBePushed(second)) {
        return;
    }
    const Box one = placed(bout.data(0).push, first);
    const Box two = placed(bout.data(1).push, second);
    if (one.bottom < two.top || two.bottom < one.top) {
        return;
    }
    const bool firstIsLeft = first.x != second.x ? first.x < second.x : first.facing > 0;
    const qint32 overlap = firstIsLeft ? one.right - two.left + 1 : two.right - one.left + 1;
    if (overlap <= 0) {
        return;
    }
    const Fixed part = (overlap * One + 1) / 2;
    const int sign = firstIsLeft ? 1 : -1;
    const Fixed before[] = {first.x - sign * part, second.x + sign * part};
    first.x = before[0];
    second.x = before[1];
    keepInStage(bout, 0, &first);
    keepInStage(bout, 1, &second);
    // If the end of the stage stops one fighter, the other is pushed back by the rest.
    const Fixed firstLost = first.x - before[0];
    const Fixed secondLost = second.x - before[1];
    first.x += secondLost;
    second.x += firstLost;
}

/// Keeps both fighters on the screen.
void keepOnScreen(Bout& bout)
{
    FighterState& first = bout.fighter(0);
    FighterState& second = bout.fighter(1);
    const int margin = bout.data(0).backWidth + bout.data(1).backWidth;
    const Fixed most = qMax(bout.game.stage.screenWidth - margin, 1) * One;
    const Fixed distance = qAbs(first.x - second.x);
    if (distance > most) {
        const bool firstIsLeft = first.x < second.x;
        const Fixed part = (distance - most) / 2;
        (firstIsLeft ? first : second).x += part;
        (firstIsLeft ? second : first).x -= distance - most - part;
    }
}

}  // namespace

void moveFighters(Bout& bout)
{
    for (int i = 0; i < 2; ++i) {
        if (!bout.stands[i]) {
            moveOne(bout, i);
        }
        keepInStage(bout, i, &bout.fighter(i));
    }
    pushApart(bout);
    keepOnScreen(bout);
    keepInStage(bout, 0, &bout.fighter(0));
    keepInStage(bout, 1, &bout.fighter(1));
}

void turnFighters(Bout& bout)
{
    for (int i = 0; i < 2; ++i) {
        FighterState& own = bout.fighter(i);
        const Fixed distance = bout.fighter(1 - i).x - own.x;
        const int wanted = distance > 0 ? 1 : -1;
        if (!bout.data(i).turns || distance == 0 || wanted == own.facing || own.isInAir ||
            bout.stands[i] || !isFree(own) || bout.state.phase != Phase::Fight) {
            continue;
        }
        own.facing = wanted;
        if (own.action == Action::Stand) {
            bout.showAfter(i, AnimationRole::Turn, AnimationRole::Stance);
        } else if (own.action == Action::Crouch) {
            bout.showAfter(i, AnimationRole::TurnCrouched, AnimationRole::Crouched);
        }
    }
}

}  // namespace Rules
