#include "image/tools/colorramp.h"

#include "image/canvas/imagepalette.h"

#include <algorithm>
#include <cstdlib>

// From the entry the search extends in both directions while each step gets lighter, then again
// while each step gets darker. The longer result is the ramp.

namespace Zorv {

namespace {

const int LargestStep = 96;

int lightness(QRgb color)
{
    return 299 * qRed(color) + 587 * qGreen(color) + 114 * qBlue(color);
}

/// 1 if `b` is lighter, -1 if it is darker, 0 if the two cannot be neighbours in a ramp.
int direction(QRgb a, QRgb b)
{
    const int step = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                               std::abs(qBlue(a) - qBlue(b))});
    if (qAlpha(a) == 0 || qAlpha(b) == 0 || step > LargestStep) {
        return 0;
    }
    const int difference = lightness(b) - lightness(a);
    return (difference > 0) - (difference < 0);
}

ColorRamp rampOf(const ImagePalette& palette, unsigned char index, int wanted)
{
    const auto goesOn = [&palette, wanted](int from) {
        return direction(palette.color(static_cast<unsigned char>(from)),
                         palette.color(static_cast<unsigned char>(from + 1))) == wanted;
    };
    int first = index;
    int last = index;
    while (first > 0 && goesOn(first - 1)) {
        --first;
    }
    while (last < 255 && goesOn(last)) {
        ++last;
    }
    return {static_cast<unsigned char>(first), static_cast<unsigned char>(last)};
}

}  // namespace

ColorRamp ColorRamp::around(const ImagePalette& palette, unsigned char index)
{
    const ColorRamp lighter = rampOf(palette, index, 1);
    const ColorRamp darker = rampOf(palette, index, -1);
    return darker.last - darker.first > lighter.last - lighter.first ? darker : lighter;
}

}  // namespace Zorv
