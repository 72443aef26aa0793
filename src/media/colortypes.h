#pragma once

#include <QtGlobal>

namespace Zorv {

/// A colour of three bytes, the form of GIF colour tables.
struct RGB
{
    quint8 r;
    quint8 g;
    quint8 b;
};

/// A colour with alpha, 255 for opaque. A palette is an array `RGBA[256]`.
struct RGBA
{
    quint8 r;
    quint8 g;
    quint8 b;
    quint8 a;
};

/// A pixel of a 32-bit `QImage`: the bytes of a `QRgb` on a little-endian machine.
struct BGRA
{
    quint8 b;
    quint8 g;
    quint8 r;
    quint8 a;
};

static_assert(sizeof(RGB) == 3 && sizeof(RGBA) == 4 && sizeof(BGRA) == 4, "plain byte records");

constexpr bool operator==(RGB x, RGB y)
{
    return x.r == y.r && x.g == y.g && x.b == y.b;
}
constexpr bool operator!=(RGB x, RGB y)
{
    return !(x == y);
}
constexpr bool operator==(RGBA x, RGBA y)
{
    return x.r == y.r && x.g == y.g && x.b == y.b && x.a == y.a;
}
constexpr bool operator!=(RGBA x, RGBA y)
{
    return !(x == y);
}
constexpr bool operator==(BGRA x, BGRA y)
{
    return x.r == y.r && x.g == y.g && x.b == y.b && x.a == y.a;
}
constexpr bool operator!=(BGRA x, BGRA y)
{
    return !(x == y);
}

}  // namespace Zorv
