#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

namespace Zorv {

/// Whose eyes lack one of the three kinds of cones.
enum class ColorBlindness {
    Protanopia,    ///< no cones for long waves: red is dark, and looks like green
    Deuteranopia,  ///< none for middle waves: red and green look alike; the most common of the
                   ///< three
    Tritanopia     ///< none for short waves: blue looks like green; rare
};

/// The colour that looks to other people as this one looks to somebody with that blindness. Greys
/// and alpha stay. May be called in any thread.
///
/// The matrices, applied to linear light, are those for severity 1.0 of G. M. Machado, M. M.
/// Oliveira, L. A. F. Fernandes, "A Physiologically-based Model for Simulation of Color Vision
/// Deficiency", IEEE Transactions on Visualization and Computer Graphics 15 (6), 2009.
ZORV_EXPORT RGBA seenWith(ColorBlindness blindness, RGBA color);

}  // namespace Zorv
