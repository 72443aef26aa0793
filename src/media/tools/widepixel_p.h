#pragma once

#include <QtGlobal>

namespace Zorv {

/// The four channels of a pixel in 16 bits each, so that one multiplication weights all of them.
using WidePixel = quint64;

constexpr WidePixel WideMask = Q_UINT64_C(0x00FF00FF00FF00FF);

/// 128, half of 256, in each channel, to round a sum.
constexpr WidePixel WideHalf = Q_UINT64_C(0x0080008000800080);

constexpr WidePixel widened(quint32 pixel)
{
    return (pixel | WidePixel(pixel) << 24) & WideMask;
}

/// The reverse, for channels below 256.
constexpr quint32 narrowed(WidePixel pixel)
{
    return quint32(pixel | pixel >> 24);
}

}  // namespace Zorv
