#pragma once

#include "zorv_export.h"

namespace Zorv {

class ImagePalette;

/// A run of entries of a palette that goes from dark to light or from light to dark.
struct ZORV_EXPORT ColorRamp
{
    unsigned char first;
    unsigned char last;

    /// The longest one with an entry in it; the entry alone if its neighbours do not go with it.
    /// Along a ramp each colour is lighter than the one before, or each darker, none is
    /// transparent, and no step is larger than 96 in any channel.
    static ColorRamp around(const ImagePalette& palette, unsigned char index);
};

}  // namespace Zorv
