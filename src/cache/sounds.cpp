#include "cache/sounds.h"

namespace Zorv {

Sounds::Sounds(StreamCache* cache) : CachedProjectFile(cache) {}

Sounds::~Sounds() = default;

bool Sounds::canName(const QVariant&) const
{
    return true;
}

}  // namespace Zorv
