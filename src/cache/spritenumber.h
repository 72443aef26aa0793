#pragma once

#include "zorv_export.h"

#include <QHash>
#include <QVector>

namespace Zorv {

class Sprite;

/// How frames refer to a sprite: by its group and its number in the group. Both are integers from 0
/// on; -1 means none.
struct SpriteNumber
{
    int group = -1;
    int number = -1;

    bool isValid() const { return group >= 0 && number >= 0; }
};

inline bool operator==(SpriteNumber a, SpriteNumber b)
{
    return a.group == b.group && a.number == b.number;
}
inline bool operator!=(SpriteNumber a, SpriteNumber b)
{
    return !(a == b);
}
inline uint qHash(SpriteNumber sprite, uint seed = 0)
{
    return ::qHash(quint64(quint32(sprite.group)) << 32 | quint32(sprite.number), seed);
}

/// The number of a sprite, from its properties "Group" and "Number". Invalid for null, and if the
/// host does not number its sprites.
ZORV_EXPORT SpriteNumber spriteNumber(const Sprite* sprite);

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::SpriteNumber, Q_PRIMITIVE_TYPE);
