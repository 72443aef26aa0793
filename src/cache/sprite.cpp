#include "cache/sprite.h"

namespace Zorv {

Sprite::~Sprite() = default;

}  // namespace Zorv
