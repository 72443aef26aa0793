#include "media/tools/nearestcolors_p.h"

#include <algorithm>

namespace Zorv {

namespace {

// Cells are 8 values wide in red, green and blue and 16 in alpha; opaque colours, which are most,
// have cells of their own.
const int ColorBits = 5;
const int AlphaBits = 4;
const int OpaqueRange = 1 << AlphaBits;
const size_t CellCount = size_t(OpaqueRange + 1) << 3 * ColorBits;
const size_t MaxCandidateBytes = 4 << 20;

quint32 cellOf(quint32 color)
{
    const quint32 alpha = color >> 24;
    const quint32 alphaRange = alpha == 255 ? OpaqueRange : alpha >> (8 - AlphaBits);
    return alphaRange << 3 * ColorBits | (color >> 9 & 0x7C00) | (color >> 6 & 0x3E0) |
           (color >> 3 & 0x1F);
}

quint32 squared(int x)
{
    return quint32(x * x);
}

}  // namespace

NearestColors::NearestColors(const QVector<RGBA>& palette) : m_cells(CellCount, 0)
{
    const int size = qMin(palette.size(), Size);
    for (int i = 0; i < size; ++i) {
        const RGBA color = palette[i];
        if (color.a < palette[m_transparent].a) {
            m_transparent = quint8(i);
        }
        if (std::find(palette.begin(), palette.begin() + i, color) == palette.begin() + i) {
            m_entries[m_indices.size()] = {{color.r, color.g, color.b, color.a}};
            m_indices.push_back(quint8(i));
        }
    }
    for (int channel = 0; channel < 3; ++channel) {
        for (int low = 0; low < 256; low += 1 << (8 - ColorBits)) {
            addRange(channel, low, low + (1 << (8 - ColorBits)) - 1);
        }
    }
    for (int low = 0; low < 256; low += 1 << (8 - AlphaBits)) {
        addRange(3, low, low + (1 << (8 - AlphaBits)) - 1);
    }
    addRange(3, 255, 255);
    m_candidates.push_back(0);
}

void NearestColors::addRange(int channel, int low, int high)
{
    Row nearest;
    Row farthest;
    // Places without an entry are as far as can be.
    nearest.fill(squared(1024));
    farthest.fill(squared(1024));
    for (size_t i = 0; i < m_indices.size(); ++i) {
        const int value = m_entries[i].channel[channel];
        nearest[i] = squared(std::max({low - value, value - high, 0}));
        farthest[i] = squared(std::max(high - value, value - low));
    }
    m_axes[size_t(channel)].nearest.push_back(nearest);
    m_axes[size_t(channel)].farthest.push_back(farthest);
}

quint8 NearestColors::find(quint32 color)
{
    if (color >> 24 == 0) {
        return m_transparent;
    }
    const quint32 cell = cellOf(color);
    quint32 at = m_cells[cell];
    if (at == 0) {
        at = fillCell(cell);
    }
    const int r = int(color >> 16 & 255);
    const int g = int(color >> 8 & 255);
    const int b = int(color & 255);
    const int a = int(color >> 24);
    const quint8* candidate = &m_candidates[at];
    const quint8* last = candidate + 1 + *candidate;
    quint32 best = ~0U;
    quint8 bestEntry = 0;
    while (candidate++ != last) {
        const Entry& entry = m_entries[*candidate];
        const quint32 distance = squared(entry.channel[0] - r) + squared(entry.channel[1] - g) +
                                 squared(entry.channel[2] - b) + squared(entry.channel[3] - a);
        if (distance < best) {
            best = distance;
            bestEntry = *candidate;
        }
    }
    return m_indices[bestEntry];
}

// An entry that is farther from the near side of the cell than another is from its far side
// cannot be the nearest to any colour in it.
quint32 NearestColors::fillCell(quint32 cell)
{
    const quint32 last = (1 << ColorBits) - 1;
    const size_t ranges[4] = {cell >> 2 * ColorBits & last, cell >> ColorBits & last, cell & last,
                              cell >> 3 * ColorBits};
    Row nearest{};
    Row farthest{};
    for (size_t axis = 0; axis < 4; ++axis) {
        const Row& low = m_axes[axis].nearest[ranges[axis]];
        const Row& high = m_axes[axis].farthest[ranges[axis]];
        for (size_t i = 0; i < Size; ++i) {
            nearest[i] += low[i];
            farthest[i] += high[i];
        }
    }
    const quint32 limit = *std::min_element(farthest.begin(), farthest.end());
    if (m_candidates.size() > MaxCandidateBytes) {
        m_candidates.resize(1);
        std::fill(m_cells.begin(), m_cells.end(), 0);
    }
    const size_t at = m_candidates.size();
    m_candidates.push_back(0);
    for (size_t i = 0; i < m_indices.size(); ++i) {
        if (nearest[i] <= limit) {
            m_candidates.push_back(quint8(i));
        }
    }
    m_candidates[at] = quint8(m_candidates.size() - at - 2);
    m_cells[cell] = quint32(at);
    return quint32(at);
}

}  // namespace Zorv
