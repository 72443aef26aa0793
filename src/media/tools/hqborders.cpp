#include "media/tools/hqborders_p.h"

#include <algorithm>
#include <array>

namespace Zorv {

namespace {

// Above these differences two pixels belong to different shapes. Brightness may differ far more
// than colour, because the eye sees most detail in it.
const quint8 LumaThreshold = 0x30;
const quint8 BlueThreshold = 0x07;
const quint8 RedThreshold = 0x06;
const quint8 AlphaThreshold = 0x30;

/// The amount by which a difference exceeds a threshold.
quint8 excess(quint8 a, quint8 b, quint8 threshold)
{
    const auto difference = quint8(std::max(a, b) - std::min(a, b));
    return quint8(std::max(difference, threshold) - threshold);
}

// Each loop has one simple step on plain pointers, so that the compiler can vectorize it.

/// The channels of a row that are compared, from a pixel on.
struct Planes
{
    Planes(const HqRow& row, int first)
        : luma(row.luma.data() + first), blue(row.blue.data() + first), red(row.red.data() + first),
          alpha(row.alpha.data() + first)
    {
    }

    const quint8* luma;
    const quint8* blue;
    const quint8* red;
    const quint8* alpha;
};

void markDifferent(Planes p, Planes q, quint8* bits, quint8 bit, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const auto more = quint8(excess(p.luma[i], q.luma[i], LumaThreshold) |
                                 excess(p.blue[i], q.blue[i], BlueThreshold) |
                                 excess(p.red[i], q.red[i], RedThreshold) |
                                 excess(p.alpha[i], q.alpha[i], AlphaThreshold));
        bits[i] = quint8(bits[i] | (more != 0 ? bit : 0));
    }
}

void markUnequal(const quint32* upper, const quint32* lower, quint8* bits, quint8 bit,
                 std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const quint32 difference =
            (upper[i] ^ upper[i + 1]) | (upper[i] ^ lower[i]) | (upper[i] ^ lower[i + 1]);
        bits[i] = difference != 0 ? bit : 0;
    }
}

/// Computes one compared channel; weights of red, green and blue are in thousandths.
void project(const quint32* pixels, quint8* values, std::size_t count,
             const std::array<int, 3>& weights, int zero)
{
    const int red = weights[0];
    const int green = weights[1];
    const int blue = weights[2];
    for (std::size_t i = 0; i < count; ++i) {
        const int sum = int(pixels[i] >> 16 & 0xFF) * red + int(pixels[i] >> 8 & 0xFF) * green +
                        int(pixels[i] & 0xFF) * blue;
        values[i] = quint8(int(float(sum) * 0.001F) + zero);
    }
}

}  // namespace

HqRow::HqRow(int width)
    : pixels(std::size_t(width) + 2), luma(pixels.size()), blue(pixels.size()), red(pixels.size()),
      alpha(pixels.size())
{
}

void HqRow::read(const quint32* padded)
{
    const std::size_t count = pixels.size();
    std::copy_n(padded, count, pixels.begin());
    project(padded, luma.data(), count, {299, 587, 114}, 0);
    project(padded, blue.data(), count, {-169, -331, 500}, 128);
    project(padded, red.data(), count, {500, -419, -81}, 128);
    std::transform(padded, padded + count, alpha.begin(),
                   [](quint32 pixel) { return quint8(pixel >> 24); });
}

void HqBorders::compare(const HqRow& upper, const HqRow& lower)
{
    const std::size_t count = m_bits.size();
    quint8* bits = m_bits.data();
    markUnequal(upper.pixels.data(), lower.pixels.data(), bits, Unequal, count);
    markDifferent({upper, 0}, {upper, 1}, bits, Top, count);
    markDifferent({upper, 0}, {lower, 1}, bits, Fall, count);
    markDifferent({lower, 0}, {upper, 1}, bits, Rise, count);
    markDifferent({upper, 0}, {lower, 0}, bits, Left, count);
}

}  // namespace Zorv
