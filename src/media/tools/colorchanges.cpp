#include "media/tools/colorchanges.h"

#include <cmath>

namespace Zorv {

namespace {

double mix(double from, double to, double part)
{
    return from + (to - from) * part;
}

quint8 mixedByte(quint8 from, quint8 to, double part)
{
    return quint8(std::lround(mix(from, to, part)));
}

RGBA mixedInHSV(RGBA from, RGBA to, double part, quint8 alpha)
{
    HSV a = toHSV(from);
    HSV b = toHSV(to);
    // Black has no saturation of its own either.
    if (a.s == 0) {
        a.h = b.h;
        a.s = a.v == 0 ? b.s : 0;
    } else if (b.s == 0) {
        b.h = a.h;
        b.s = b.v == 0 ? a.s : 0;
    }
    const double way = std::remainder(b.h - a.h, 360);
    return fromHSV({a.h + way * part, mix(a.s, b.s, part), mix(a.v, b.v, part)}, alpha);
}

RGBA mixed(RGBA from, RGBA to, double part, ColorSpace space)
{
    const quint8 alpha = mixedByte(from.a, to.a, part);
    switch (space) {
    case ColorSpace::HSV:
        return mixedInHSV(from, to, part, alpha);
    case ColorSpace::OKLab: {
        const OKLab a = toOKLab(from);
        const OKLab b = toOKLab(to);
        return fromOKLab({mix(a.l, b.l, part), mix(a.a, b.a, part), mix(a.b, b.b, part)}, alpha);
    }
    case ColorSpace::RGB:
        break;
    }
    return {mixedByte(from.r, to.r, part), mixedByte(from.g, to.g, part),
            mixedByte(from.b, to.b, part), alpha};
}

}  // namespace

QVector<RGBA> rampBetween(RGBA from, RGBA to, int count, ColorSpace space)
{
    QVector<RGBA> colors;
    for (int i = 0; i < count; ++i) {
        // The ends are exact, whatever rounding does.
        const bool isEnd = i == 0 || i == count - 1;
        colors.append(isEnd ? (i == 0 ? from : to)
                            : mixed(from, to, double(i) / (count - 1), space));
    }
    return colors;
}

RGBA shiftHue(RGBA color, double degrees)
{
    if ((color.r == color.g && color.g == color.b) || std::remainder(degrees, 360) == 0) {
        return color;
    }
    OKLCh turned = toOKLCh(color);
    turned.h += degrees;
    return fromOKLCh(turned, color.a);
}

int replaceColor(RGBA* palette, RGBA from, RGBA to, const bool* selection)
{
    if (from == to) {
        return 0;
    }
    int count = 0;
    for (int i = 0; i < 256; ++i) {
        if (palette[i] == from && (!selection || selection[i])) {
            palette[i] = to;
            ++count;
        }
    }
    return count;
}

}  // namespace Zorv
