#include "cache/spritenumber.h"

#include "cache/sprite.h"

namespace Zorv {

SpriteNumber spriteNumber(const Sprite* sprite)
{
    if (!sprite) {
        return {};
    }
    bool hasGroup = false;
    bool hasNumber = false;
    const int group = sprite->property(QStringLiteral("Group")).toInt(&hasGroup);
    const int number = sprite->property(QStringLiteral("Number")).toInt(&hasNumber);
    const SpriteNumber found{group, number};
    return hasGroup && hasNumber && found.isValid() ? found : SpriteNumber();
}

}  // namespace Zorv
