#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>

#include <optional>

namespace Zorv {

/// Colour blindness: one of the three kinds of cones is missing.
enum class ColorBlindness {
    Protanopia,    ///< no long-wave cones: red is dark and looks like green
    Deuteranopia,  ///< no middle-wave cones: red and green look alike; the most common of the
                   ///< three
    Tritanopia     ///< no short-wave cones: blue looks like green; rare
};

/// Simulates how a colour looks to someone with a colour blindness. Greys and alpha are unchanged.
/// Any thread.
///
/// The matrices are applied to linear light. They are those for severity 1.0 in G. M. Machado, M.
/// M. Oliveira, L. A. F. Fernandes, "A Physiologically-based Model for Simulation of Color Vision
/// Deficiency", IEEE Transactions on Visualization and Computer Graphics 15 (6), 2009.
ZORV_EXPORT RGBA seenWith(ColorBlindness blindness, RGBA color);

/// A kind of colour vision; empty means normal.
using ColorSight = std::optional<ColorBlindness>;

/// The same; unchanged if `sight` is empty.
ZORV_EXPORT RGBA seenWith(const ColorSight& sight, RGBA color);

/// A simulated copy of an image of any format, as 32 bit with alpha. Null for a null image or one
/// too large for memory. If `sight` is empty, the image itself.
ZORV_EXPORT QImage seenWith(const ColorSight& sight, const QImage& image);

}  // namespace Zorv
