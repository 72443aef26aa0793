#include "media/tools/colorbins_p.h"

#include <utility>

namespace Zorv {

ColorBins::ColorBins()
{
    static_assert(MaxBins <= 1 << (SlotBits - 1), "half of the slots stay free");
    m_slots.fill(0);
}

quint16* ColorBins::newBin(quint32 color)
{
    while (m_bins.size() == MaxBins) {
        coarsen();
    }
    quint16* slot = find(color & m_mask);
    if (*slot == 0) {
        m_bins.emplace_back();
        m_bins.back().key = color & m_mask;
        *slot = quint16(m_bins.size());
    }
    return slot;
}

void ColorBins::coarsen()
{
    if (areExact()) {
        for (ColorBin& bin : m_bins) {
            addTo(bin, bin.key, bin.weight);
        }
    }
    // Clears the lowest remaining bit of each byte.
    m_mask &= m_mask << 1 & ~0x01010101U;
    m_slots.fill(0);
    const std::vector<ColorBin> old = std::exchange(m_bins, {});
    for (const ColorBin& bin : old) {
        ColorBin& joined = m_bins[*newBin(bin.key) - 1U];
        joined.weight += bin.weight;
        for (int i = 0; i < 4; ++i) {
            joined.sum[i] += bin.sum[i];
        }
    }
}

}  // namespace Zorv
