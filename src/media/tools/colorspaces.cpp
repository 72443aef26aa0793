#include "media/tools/colorspaces.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

// sRGB bytes are linear light encoded by a curve (IEC 61966-2-1). OKLab computes the response of
// the three kinds of cones to that light, takes the cube roots, and transforms them by a matrix.

namespace Zorv {

namespace {

constexpr double Turn = 360;

// Light this far outside 0 to 1 is a rounding error. It is a third of a byte step at the dark end,
// where steps are smallest.
constexpr double Slack = 1e-4;

struct Light
{
    double r;
    double g;
    double b;
};

double decoded(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

const std::array<double, 256>& lights()
{
    static const std::array<double, 256> table = [] {
        std::array<double, 256> result{};
        for (size_t i = 0; i < result.size(); ++i) {
            result[i] = decoded(double(i) / 255);
        }
        return result;
    }();
    return table;
}

// The limits from which light is nearer to the next byte.
const std::array<double, 255>& borders()
{
    static const std::array<double, 255> table = [] {
        std::array<double, 255> result{};
        for (size_t i = 0; i < result.size(); ++i) {
            result[i] = decoded((double(i) + 0.5) / 255);
        }
        return result;
    }();
    return table;
}

// Clamped to 0 to 1; not-a-number becomes 0.
double held(double value)
{
    return value > 0 ? std::min(value, 1.0) : 0;
}

double aroundCircle(double hue)
{
    const double rest = std::isfinite(hue) ? std::fmod(hue, Turn) : 0;
    const double positive = rest < 0 ? rest + Turn : rest;
    return positive < Turn ? positive : 0;
}

double cube(double x)
{
    return x * x * x;
}

Light lightOf(OKLab color)
{
    const double l = cube(color.l + 0.3963377774 * color.a + 0.2158037573 * color.b);
    const double m = cube(color.l - 0.1055613458 * color.a - 0.0638541728 * color.b);
    const double s = cube(color.l - 0.0894841775 * color.a - 1.2914855480 * color.b);
    return {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
            -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
            -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
}

bool isShown(const Light& light)
{
    return std::min({light.r, light.g, light.b}) >= -Slack &&
           std::max({light.r, light.g, light.b}) <= 1 + Slack;
}

// The light of a colour with its chroma reduced to what a screen can show.
Light shownLight(OKLab color)
{
    const Light wanted = lightOf(color);
    if (isShown(wanted)) {
        return wanted;
    }
    double shown = 0;
    double tooMuch = 1;
    for (int i = 0; i < 24; ++i) {
        const double middle = (shown + tooMuch) / 2;
        (isShown(lightOf({color.l, color.a * middle, color.b * middle})) ? shown : tooMuch) =
            middle;
    }
    return lightOf({color.l, color.a * shown, color.b * shown});
}

}  // namespace

double linearLight(quint8 channel)
{
    return lights()[channel];
}

quint8 encodedLight(double light)
{
    const auto& table = borders();
    return quint8(std::upper_bound(table.begin(), table.end(), held(light)) - table.begin());
}

HSV toHSV(RGBA color)
{
    const int most = std::max({color.r, color.g, color.b});
    const int range = most - std::min({color.r, color.g, color.b});
    const double value = most / 255.0;
    if (range == 0) {
        return {0, 0, value};
    }
    const double sixth = color.r == most   ? double(color.g - color.b) / range
                         : color.g == most ? double(color.b - color.r) / range + 2
                                           : double(color.r - color.g) / range + 4;
    return {aroundCircle(sixth * 60), double(range) / most, value};
}

RGBA fromHSV(HSV color, quint8 alpha)
{
    const double sixth = aroundCircle(color.h) / 60;
    const double value = held(color.v);
    // A channel is at its maximum within a sixth of the circle around its own hue, and falls off
    // over the next sixth.
    const auto channel = [&](int shift) {
        const double place = std::fmod(shift + sixth, 6.0);
        const double fall = held(std::min(place, 4 - place));
        return quint8(std::lround(255 * value * (1 - held(color.s) * fall)));
    };
    return {channel(5), channel(3), channel(1), alpha};
}

OKLab toOKLab(RGBA color)
{
    const double r = linearLight(color.r);
    const double g = linearLight(color.g);
    const double b = linearLight(color.b);
    const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
    const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
    const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

RGBA fromOKLab(OKLab color, quint8 alpha)
{
    const bool isColor = std::isfinite(color.a) && std::isfinite(color.b);
    const Light light = shownLight({held(color.l), isColor ? color.a : 0, isColor ? color.b : 0});
    return {encodedLight(light.r), encodedLight(light.g), encodedLight(light.b), alpha};
}

OKLCh toOKLCh(OKLab color)
{
    return {color.l, std::hypot(color.a, color.b),
            aroundCircle(qRadiansToDegrees(std::atan2(color.b, color.a)))};
}

OKLab toOKLab(OKLCh color)
{
    const double angle = qDegreesToRadians(aroundCircle(color.h));
    return {color.l, color.c * std::cos(angle), color.c * std::sin(angle)};
}

OKLCh toOKLCh(RGBA color)
{
    return toOKLCh(toOKLab(color));
}

RGBA fromOKLCh(OKLCh color, quint8 alpha)
{
    return fromOKLab(toOKLab(color), alpha);
}

}  // namespace Zorv
