#include "cache/sounds.h"

namespace Zorv {

Sounds::Sounds(StreamCache* cache) : CachedProjectFile(cache) {}

Sounds::~Sounds() = default;

}  // namespace Zorv
