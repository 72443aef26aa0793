#include "media/tools/colorbins_p.h"

#include <QtAlgorithms>

#include <utility>

namespace Zorv {

namespace {

const size_t FirstTableSize = 1024;
const size_t LastTableSize = 2 * ColorBins::MaxBins;

}  // namespace

ColorBins::ColorBins()
{
    rebuild(FirstTableSize);
}

void ColorBins::add(quint32 color, double count)
{
    ColorBin* bin = &place(color & m_mask);
    if (bin->weight == 0) {
        while (m_size == MaxBins) {
            coarsen();
        }
        if (m_table.size() < LastTableSize && size_t(m_size) >= m_table.size() / 2) {
            rebuild(2 * m_table.size());
        }
        bin = &place(color & m_mask);
        m_size += bin->weight == 0;
        bin->key = color & m_mask;
    }
    bin->weight += count;
    bin->sum[0] += count * double(color >> 16 & 255);
    bin->sum[1] += count * double(color >> 8 & 255);
    bin->sum[2] += count * double(color & 255);
    bin->sum[3] += count * double(color >> 24);
}

ColorBin& ColorBins::place(quint32 key)
{
    const size_t last = m_table.size() - 1;
    size_t at = key * 0x9E3779B1U >> m_shift;
    while (m_table[at].weight > 0 && m_table[at].key != key) {
        at = (at + 1) & last;
    }
    return m_table[at];
}

// Puts all bins into a new table, under their keys as the mask now cuts them.
void ColorBins::rebuild(size_t size)
{
    const std::vector<ColorBin> old = std::exchange(m_table, std::vector<ColorBin>(size));
    m_shift = 32 - int(qCountTrailingZeroBits(quint32(size)));
    m_size = 0;
    for (const ColorBin& bin : old) {
        if (bin.weight > 0) {
            ColorBin& joined = place(bin.key & m_mask);
            m_size += joined.weight == 0;
            joined.key = bin.key & m_mask;
            joined.weight += bin.weight;
            for (int i = 0; i < 4; ++i) {
                joined.sum[i] += bin.sum[i];
            }
        }
    }
}

void ColorBins::coarsen()
{
    m_mask = (m_mask << 1) & (m_mask & ~0x01010101U);
    rebuild(m_table.size());
}

}  // namespace Zorv
