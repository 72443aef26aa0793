#include "cache/pixelcopy.h"

namespace Zorv {

PixelCopy::~PixelCopy() = default;

}  // namespace Zorv
