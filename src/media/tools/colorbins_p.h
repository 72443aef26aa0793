#pragma once

#include <QtGlobal>

#include <array>
#include <vector>

namespace Zorv {

/// The pixels whose colours share their upper bits.
struct ColorBin
{
    quint32 key = 0;     ///< the shared bits; bytes from the top are alpha, red, green, blue
    double weight = 0;   ///< how many
    double sum[4] = {};  ///< of red, green, blue and alpha over them, unless the bins are exact
};

/// Counts colours in a bounded number of bins.
///
/// At first a bin holds one colour. When the bins are used up, neighbours are joined: the
/// bins lose the lowest bit of each channel, all at once.
class ColorBins
{
public:
    static constexpr int MaxBins = 4096;

    ColorBins();

    /// `color` is a `QRgb`.
    void add(quint32 color, double count)
    {
        quint16* slot = find(color & m_mask);
        if (*slot == 0) {
            slot = newBin(color);
        }
        ColorBin& bin = m_bins[*slot - 1U];
        bin.weight += count;
        // The sums of a bin of one colour would tell what its key tells.
        if (!areExact()) {
            addTo(bin, color, count);
        }
    }

    /// Whether each bin still is one colour.
    bool areExact() const { return m_mask == ~0U; }

    /// In the order in which their first colours came, as long as they are exact.
    const std::vector<ColorBin>& bins() const { return m_bins; }

    /// The mean of a channel, 0 to 3 for red, green, blue and alpha, in one of the bins.
    double mean(const ColorBin& bin, int channel) const
    {
        const int shift = channel == 3 ? 24 : 16 - 8 * channel;
        return areExact() ? double(bin.key >> shift & 255) : bin.sum[channel] / bin.weight;
    }

private:
    static constexpr int SlotBits = 14;

    static void addTo(ColorBin& bin, quint32 color, double count)
    {
        bin.sum[0] += count * double(color >> 16 & 255);
        bin.sum[1] += count * double(color >> 8 & 255);
        bin.sum[2] += count * double(color & 255);
        bin.sum[3] += count * double(color >> 24);
    }

    /// The slot of a bin, or the one that it is to take.
    quint16* find(quint32 key)
    {
        quint32 at = key * 0x9E3779B1U >> (32 - SlotBits);
        while (m_slots[at] != 0 && m_bins[m_slots[at] - 1U].key != key) {
            at = (at + 1) % m_slots.size();
        }
        return &m_slots[at];
    }

    quint16* newBin(quint32 color);
    void coarsen();

    std::vector<ColorBin> m_bins;
    std::array<quint16, 1 << SlotBits> m_slots;  ///< the numbers of bins, from 1; 0 for none
    quint32 m_mask = ~0U;
};

}  // namespace Zorv
