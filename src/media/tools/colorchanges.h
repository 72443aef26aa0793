#pragma once

#include "media/tools/colorspaces.h"

#include <QVector>

namespace Zorv {

/// `count` colours in even steps from one colour to another, both included. A single one is `from`;
/// a `count` below 1 gives none. Alpha changes in even steps, too.
///
/// In HSV, a grey end takes the hue of the other end, so a ramp to black or white keeps its hue. In
/// OKLab, a colour outside the screen's range loses chroma, not lightness.
ZORV_EXPORT QVector<RGBA> rampBetween(RGBA from, RGBA to, int count, ColorSpace space);

/// Rotates the hue of a colour by a number of degrees, of any sign, and keeps its lightness. A
/// result outside the screen's range loses chroma, not lightness. Alpha, black, white and greys are
/// unchanged. Rotating back may give another colour, because lost chroma stays lost.
ZORV_EXPORT RGBA shiftHue(RGBA color, double degrees);

/// Replaces each of 256 entries that equals `from`, alpha included, by `to`. A selection is a
/// pointer to 256 `bool`; null means all. Returns the number of changed entries.
ZORV_EXPORT int replaceColor(RGBA* palette, RGBA from, RGBA to, const bool* selection = nullptr);

}  // namespace Zorv
