#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

namespace Zorv {

/// The spaces that colours are mixed in.
enum class ColorSpace {
    RGB,   ///< the bytes as they are
    HSV,   ///< along the shorter way around the circle of hues
    OKLab  ///< as the eye sees it: steps of the same size look the same
};

/// Hue in degrees, 0 up to 360, saturation and value from 0 to 1. A grey has hue 0.
struct HSV
{
    double h;
    double s;
    double v;
};

/// Björn Ottosson's OKLab (2020): lightness from 0 to 1, and two axes of colour, each within -0.4
/// and 0.4 for what a screen shows; `a` goes from green to red, `b` from blue to yellow.
struct OKLab
{
    double l;
    double a;
    double b;
};

/// OKLab in polar form: chroma from 0, about 0.32 at most on a screen, and hue in degrees, 0 up to
/// 360. A grey has chroma 0 but for rounding, and a hue that means nothing.
struct OKLCh
{
    double l;
    double c;
    double h;
};

/// The light that a byte of an sRGB channel stands for, 0 to 1.
ZORV_EXPORT double linearLight(quint8 channel);

/// The byte nearest to an amount of light; what is outside of 0 to 1 becomes the near end.
ZORV_EXPORT quint8 encodedLight(double light);

/// Conversions of a colour; its alpha does not count. They may be called in any thread.
ZORV_EXPORT HSV toHSV(RGBA color);
ZORV_EXPORT OKLab toOKLab(RGBA color);
ZORV_EXPORT OKLCh toOKLCh(RGBA color);
ZORV_EXPORT OKLCh toOKLCh(OKLab color);
ZORV_EXPORT OKLab toOKLab(OKLCh color);

/// And back. Saturation, value and lightness are held to 0 and 1; any hue is taken around the
/// circle. A colour that no screen shows keeps lightness and hue, and loses as much chroma as it
/// must. There and back gives the same bytes.
ZORV_EXPORT RGBA fromHSV(HSV color, quint8 alpha = 255);
ZORV_EXPORT RGBA fromOKLab(OKLab color, quint8 alpha = 255);
ZORV_EXPORT RGBA fromOKLCh(OKLCh color, quint8 alpha = 255);

}  // namespace Zorv
