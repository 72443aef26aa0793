#include "media/tools/hqborders_p.h"

#include <QRgb>

#include <algorithm>

namespace Zorv {

namespace {

// From these differences on two pixels belong to different shapes. The eye sees brightness best
// in detail, so that more of it must change.
const quint8 LumaThreshold = 0x30;
const quint8 BlueThreshold = 0x07;
const quint8 RedThreshold = 0x06;
const quint8 AlphaThreshold = 0x30;

bool apart(quint8 a, quint8 b, quint8 threshold)
{
    return quint8(std::max(a, b) - std::min(a, b)) > threshold;
}

}  // namespace

HqRow::HqRow(int width)
    : pixels(std::size_t(width) + 2), luma(pixels.size()), blue(pixels.size()), red(pixels.size()),
      alpha(pixels.size())
{
}

void HqRow::read(const quint32* padded)
{
    std::copy_n(padded, pixels.size(), pixels.begin());
    const auto thousandths = [](int value) { return int(float(value) * 0.001F); };
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const int r = int(padded[i] >> 16 & 0xFF);
        const int g = int(padded[i] >> 8 & 0xFF);
        const int b = int(padded[i] & 0xFF);
        luma[i] = quint8(thousandths(299 * r + 587 * g + 114 * b));
        blue[i] = quint8(thousandths(-169 * r - 331 * g + 500 * b) + 128);
        red[i] = quint8(thousandths(500 * r - 419 * g - 81 * b) + 128);
        alpha[i] = quint8(padded[i] >> 24);
    }
}

void HqBorders::compare(const HqRow& upper, const HqRow& lower)
{
    const auto differ = [](const HqRow& p, std::size_t i, const HqRow& q, std::size_t k) {
        return apart(p.luma[i], q.luma[k], LumaThreshold) |
               apart(p.blue[i], q.blue[k], BlueThreshold) |
               apart(p.red[i], q.red[k], RedThreshold) |
               apart(p.alpha[i], q.alpha[k], AlphaThreshold);
    };
    for (std::size_t i = 0; i < m_bits.size(); ++i) {
        const quint32 pixel = upper.pixels[i];
        const bool unequal = (upper.pixels[i + 1] != pixel) | (lower.pixels[i] != pixel) |
                             (lower.pixels[i + 1] != pixel);
        m_bits[i] =
            quint8(differ(upper, i, upper, i + 1) * Top | differ(upper, i, lower, i + 1) * Fall |
                   differ(lower, i, upper, i + 1) * Rise | differ(upper, i, lower, i) * Left |
                   unequal * Unequal);
    }
}

}  // namespace Zorv
