#pragma once

#include "media/tools/colorspaces.h"

#include <QVector>

namespace Zorv {

/// `count` colours in even steps from one to another, both of them included; a single one is
/// `from`, and none come for a count below 1. Alpha goes in even steps, too.
///
/// In HSV a grey end has the hue of the other one, so a ramp to black or white keeps its hue. In
/// OKLab what no screen shows loses chroma, not lightness.
ZORV_EXPORT QVector<RGBA> rampBetween(RGBA from, RGBA to, int count, ColorSpace space);

/// The colour with its hue turned by so many degrees, of any sign, and its lightness as it was.
/// Where no screen shows that, it loses chroma, not lightness. Alpha stays; black, white and greys
/// do too. Turning back need not give the same colour, for lost chroma stays lost.
ZORV_EXPORT RGBA shiftHue(RGBA color, double degrees);

/// Gives another colour to those of 256 entries that are equal to `from`, alpha included. A
/// selection is a pointer to 256 `bool`; null means all. Gives how many entries were changed.
ZORV_EXPORT int replaceColor(RGBA* palette, RGBA from, RGBA to, const bool* selection = nullptr);

}  // namespace Zorv
