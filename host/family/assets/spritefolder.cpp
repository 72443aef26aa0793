#include "assets/spritefolder.h"

namespace Family {

SpriteFolder::SpriteFolder() = default;

SpriteFolder::~SpriteFolder() = default;

bool SpriteFolder::fromFile(Zorv::Archive&, const QString&, bool)
{
    return false;
}

bool SpriteFolder::toFile(Zorv::Archive&, const QString&, bool)
{
    return false;
}

}  // namespace Family
