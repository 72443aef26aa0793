#include "cache/palette.h"

namespace Zorv {

Palette::~Palette() = default;

}  // namespace Zorv
