#pragma once

#include <QtGlobal>

#include <algorithm>

namespace Zorv {

/// A colour premultiplied by its alpha, so that transparent pixels contribute nothing.
struct Mixture
{
    float b, g, r, a;
};

inline Mixture mixtureOf(quint32 pixel)
{
    const float a = float(pixel >> 24);
    return {float(pixel & 0xFF) * a, float((pixel >> 8) & 0xFF) * a,
            float((pixel >> 16) & 0xFF) * a, a};
}

inline void add(Mixture& sum, const Mixture& part, float weight)
{
    sum.b += part.b * weight;
    sum.g += part.g * weight;
    sum.r += part.r * weight;
    sum.a += part.a * weight;
}

inline quint32 pixelOf(const Mixture& sum)
{
    const auto a = quint32(sum.a + 0.5F);
    if (a == 0) {
        return 0;
    }
    const float scale = 1 / sum.a;
    const auto part = [scale](float value) {
        return std::min(quint32(value * scale + 0.5F), 255U);
    };
    return a << 24 | part(sum.r) << 16 | part(sum.g) << 8 | part(sum.b);
}

}  // namespace Zorv
