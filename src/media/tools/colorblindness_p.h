#pragma once

#include "media/tools/colorblindness.h"

namespace Zorv {

/// Maps linear light to linear light; one row per output channel.
using SightMatrix = double[3][3];

const SightMatrix& sightMatrix(ColorBlindness blindness);

}  // namespace Zorv
