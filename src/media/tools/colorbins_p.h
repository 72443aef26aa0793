#pragma once

#include "media/colortypes.h"

#include <QtGlobal>

#include <vector>

namespace Zorv {

/// The pixels whose colours share their upper bits.
struct ColorBin
{
    quint32 key = 0;     ///< the shared bits; bytes from the top are alpha, red, green, blue
    double weight = 0;   ///< how many; 0 for a place without a bin
    double sum[4] = {};  ///< of red, green, blue and alpha over them
};

/// Counts colours in a bounded number of bins.
///
/// At first a bin holds one colour. When the bins are used up, neighbours are joined: the
/// bins lose the lowest bit of each channel, all at once.
class ColorBins
{
public:
    static const int MaxBins = 32768;

    ColorBins();

    void add(quint32 color, double count);

    /// Whether each bin still is one colour.
    bool areExact() const { return m_mask == ~0U; }
    int size() const { return m_size; }

    /// Calls a function with each bin.
    template <class Function>
    void forEach(Function function) const
    {
        for (const ColorBin& bin : m_table) {
            if (bin.weight > 0) {
                function(bin);
            }
        }
    }

private:
    ColorBin& place(quint32 key);
    void rebuild(size_t size);
    void coarsen();

    std::vector<ColorBin> m_table;
    int m_size = 0;
    int m_shift;  ///< of a hash to a place in the table
    quint32 m_mask = ~0U;
};

}  // namespace Zorv
