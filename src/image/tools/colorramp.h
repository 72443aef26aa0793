#pragma once

#include "zorv_export.h"

namespace Zorv {

class ImagePalette;

/// A range of palette entries that runs from dark to light or from light to dark.
struct ZORV_EXPORT ColorRamp
{
    unsigned char first;
    unsigned char last;

    /// The longest ramp that contains an entry; only the entry itself if no neighbour fits. Along a
    /// ramp every colour is lighter than the one before, or every colour is darker. None is
    /// transparent, and no channel changes by more than 96 per step.
    static ColorRamp around(const ImagePalette& palette, unsigned char index);
};

}  // namespace Zorv
