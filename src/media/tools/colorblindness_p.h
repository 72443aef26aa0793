#pragma once

#include "media/tools/colorblindness.h"

namespace Zorv {

/// From light to light; a row for each channel that is made.
using SightMatrix = double[3][3];

const SightMatrix& sightMatrix(ColorBlindness blindness);

}  // namespace Zorv
