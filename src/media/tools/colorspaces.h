#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

namespace Zorv {

/// The colour spaces for mixing colours.
enum class ColorSpace {
    RGB,   ///< the bytes themselves
    HSV,   ///< the shorter way around the hue circle
    OKLab  ///< perceptual: equal steps look equal
};

/// Hue in degrees, from 0 to below 360; saturation and value from 0 to 1. A grey has hue 0.
struct HSV
{
    double h;
    double s;
    double v;
};

/// Björn Ottosson's OKLab (2020): lightness from 0 to 1 and two colour axes, each within -0.4 to
/// 0.4 for screen colours. `a` goes from green to red, `b` from blue to yellow.
struct OKLab
{
    double l;
    double a;
    double b;
};

/// OKLab in polar form: chroma from 0 to about 0.32 on a screen, and hue in degrees, from 0 to
/// below 360. A grey has chroma 0 apart from rounding, and a meaningless hue.
struct OKLCh
{
    double l;
    double c;
    double h;
};

/// The linear light of an sRGB byte, 0 to 1.
ZORV_EXPORT double linearLight(quint8 channel);

/// The sRGB byte nearest to an amount of linear light, which is clamped to 0 to 1.
ZORV_EXPORT quint8 encodedLight(double light);

/// Conversions of a colour; alpha is ignored. Any thread.
ZORV_EXPORT HSV toHSV(RGBA color);
ZORV_EXPORT OKLab toOKLab(RGBA color);
ZORV_EXPORT OKLCh toOKLCh(RGBA color);
ZORV_EXPORT OKLCh toOKLCh(OKLab color);
ZORV_EXPORT OKLab toOKLab(OKLCh color);

/// The reverse conversions. Saturation, value and lightness are clamped to 0 to 1; any hue wraps
/// around. A colour outside the screen's range keeps lightness and hue and loses as much chroma as
/// necessary. Converting there and back gives the same bytes.
ZORV_EXPORT RGBA fromHSV(HSV color, quint8 alpha = 255);
ZORV_EXPORT RGBA fromOKLab(OKLab color, quint8 alpha = 255);
ZORV_EXPORT RGBA fromOKLCh(OKLCh color, quint8 alpha = 255);

}  // namespace Zorv
