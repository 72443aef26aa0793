// Nearest-colour search with a grid of cells.
//
// A query looks up the cell of its colour and compares only that cell's candidates. The candidates
// are computed at the first query of a cell. An entry is dropped if even its nearest point in the
// cell is farther than the farthest point of some other entry: it can then never win. These bounds
// are sums over the channels, so they are computed once per channel and range of values, and shared
// by all cells.
//
// When the lists have grown too long in total, all are discarded and rebuilt on demand, which
// limits the memory.

#include "media/tools/nearestcolors_p.h"

#include <algorithm>
#include <utility>

namespace Zorv {

namespace {

// Cells of opaque colours, which are the most frequent, are 8 values wide in red, green and blue.
// Other cells are 16 wide, and 32 in alpha.
const int OpaqueBits = 5;
const int TranslucentBits = 4;
const int AlphaBits = 3;
const quint32 OpaqueCells = 1 << 3 * OpaqueBits;
const quint32 TranslucentCells = 1 << (3 * TranslucentBits + AlphaBits);
const size_t MaxCandidates = 1 << 19;

quint32 cellOf(quint32 color)
{
    if (color >> 24 == 255) {
        return (color >> 9 & 0x7C00) | (color >> 6 & 0x3E0) | (color >> 3 & 0x1F);
    }
    return OpaqueCells + ((color >> 17 & 0x7000) | (color >> 12 & 0xF00) | (color >> 8 & 0xF0) |
                          (color >> 4 & 0xF));
}

// The range numbers of a cell. Opaque cells have the first ones.
std::array<int, 4> rangesOf(quint32 cell)
{
    const int at = int(cell);
    if (cell < OpaqueCells) {
        return {at >> 10 & 31, at >> 5 & 31, at & 31, 0};
    }
    return {32 + (at >> 8 & 15), 32 + (at >> 4 & 15), 32 + (at & 15), 1 + (at >> 12 & 7)};
}

// The lowest and the highest value of a range.
std::pair<int, int> boundsOf(size_t channel, int number)
{
    const auto part = [](int index, int bits) {
        const int width = 256 >> bits;
        return std::make_pair(index * width, index * width + width - 1);
    };
    if (channel == 3) {
        return number == 0 ? std::make_pair(255, 255) : part(number - 1, AlphaBits);
    }
    return number < 32 ? part(number, OpaqueBits) : part(number - 32, TranslucentBits);
}

quint32 squared(int x)
{
    return quint32(x * x);
}

}  // namespace

NearestColors::NearestColors(const QVector<RGBA>& palette)
    : m_cells(OpaqueCells + TranslucentCells, 0)
{
    const int size = qMin(palette.size(), Size);
    for (int i = 0; i < size; ++i) {
        const RGBA color = palette[i];
        if (color.a < palette[m_transparent].a) {
            m_transparent = quint8(i);
        }
        if (std::find(palette.begin(), palette.begin() + i, color) == palette.begin() + i) {
            m_entries.push_back({{color.r, color.g, color.b, color.a}, qint16(i)});
        }
    }
    m_candidates.push_back({});
    m_found.fill({0, m_transparent});
}

const NearestColors::Range& NearestColors::range(size_t channel, int number)
{
    std::unique_ptr<Range>& range = m_ranges[channel][size_t(number)];
    if (!range) {
        range = std::make_unique<Range>();
        const auto [low, high] = boundsOf(channel, number);
        for (size_t i = 0; i < m_entries.size(); ++i) {
            const int value = m_entries[i].channel[channel];
            range->nearest[i] = quint16(squared(std::max({low - value, value - high, 0})));
            range->farthest[i] = quint16(squared(std::max(high - value, value - low)));
        }
    }
    return *range;
}

quint8 NearestColors::search(quint32 color)
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
    const Entry* head = &m_candidates[at];
    const Entry* last = head + head->index;
    // Distance and index are compared as one number, which needs no branch.
    quint32 best = ~0U;
    for (const Entry* entry = head; entry++ != last;) {
        const quint32 distance = squared(entry->channel[0] - r) + squared(entry->channel[1] - g) +
                                 squared(entry->channel[2] - b) + squared(entry->channel[3] - a);
        best = std::min(best, distance << 8 | quint32(entry->index));
    }
    return quint8(best);
}

// An entry whose nearest distance to the cell exceeds another entry's farthest distance cannot be
// the nearest to any colour in it.
quint32 NearestColors::fillCell(quint32 cell)
{
    const std::array<int, 4> numbers = rangesOf(cell);
    const Range& red = range(0, numbers[0]);
    const Range& green = range(1, numbers[1]);
    const Range& blue = range(2, numbers[2]);
    const Range& alpha = range(3, numbers[3]);
    std::array<quint32, Size> nearest;
    quint32 limit = ~0U;
    for (size_t i = 0; i < m_entries.size(); ++i) {
        nearest[i] =
            quint32(red.nearest[i]) + green.nearest[i] + blue.nearest[i] + alpha.nearest[i];
        limit = std::min(limit, quint32(red.farthest[i]) + green.farthest[i] + blue.farthest[i] +
                                    alpha.farthest[i]);
    }
    if (m_candidates.size() > MaxCandidates) {
        m_candidates.resize(1);
        std::fill(m_cells.begin(), m_cells.end(), 0);
    }
    const size_t at = m_candidates.size();
    m_candidates.push_back({});
    for (size_t i = 0; i < m_entries.size(); ++i) {
        if (nearest[i] <= limit) {
            m_candidates.push_back(m_entries[i]);
        }
    }
    m_candidates[at].index = qint16(m_candidates.size() - at - 1);
    m_cells[cell] = quint32(at);
    return quint32(at);
}

}  // namespace Zorv
