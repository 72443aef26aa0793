#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>

#include <optional>

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

/// How somebody sees colours; empty for as they are.
using ColorSight = std::optional<ColorBlindness>;

/// The same where there may be nothing to do.
ZORV_EXPORT RGBA seenWith(const ColorSight& sight, RGBA color);

/// A copy of an image of any form, as 32 bit with alpha; null for one that is null, or too large
/// for memory. Without a blindness it is the image itself.
ZORV_EXPORT QImage seenWith(const ColorSight& sight, const QImage& image);

}  // namespace Zorv
