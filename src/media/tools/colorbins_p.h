#pragma once

#include <QtGlobal>

#include <array>
#include <vector>

namespace Zorv {

/// The pixels whose colours have the same upper bits.
struct ColorBin
{
    quint32 key = 0;     ///< the common bits; bytes from the top are alpha, red, green, blue
    double weight = 0;   ///< number of pixels
    double sum[4] = {};  ///< of red, green, blue and alpha; not used while bins are exact
};

/// Counts colours in a limited number of bins.
///
/// At first every bin is one colour. When the bins run out, neighbours are merged: all bins lose
/// the lowest bit of each channel at once.
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
        // For a bin of one colour the key already contains the sums.
        if (!areExact()) {
            addTo(bin, color, count);
        }
    }

    /// Whether every bin is still a single colour.
    bool areExact() const { return m_mask == ~0U; }

    /// In the order in which the colours first appeared, as long as they are exact.
    const std::vector<ColorBin>& bins() const { return m_bins; }

    /// The mean of a channel in a bin; channels 0 to 3 are red, green, blue and alpha.
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

    /// The slot of a bin, or the free slot for it.
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
    std::array<quint16, 1 << SlotBits> m_slots;  ///< bin numbers, from 1; 0 is empty
    quint32 m_mask = ~0U;
};

}  // namespace Zorv
