#include "cache/sprites.h"

namespace Zorv {

Sprites::Sprites(StreamCache* cache) : CachedProjectFile(cache) {}

Sprites::~Sprites() = default;

}  // namespace Zorv
