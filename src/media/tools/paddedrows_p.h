#pragma once

#include "media/tools/raster_p.h"

#include <algorithm>
#include <array>
#include <vector>

namespace Zorv {

/// Iterates over the rows of an image, each with the row above and below. Border pixels are
/// repeated outside, so positions from -1 to `width()` can be read. `Adapt` is applied to each
/// pixel that is read.
template <class Pixel, class Adapt>
class PaddedRows
{
public:
    PaddedRows(const Raster<const Pixel>& source, Adapt adapt) : m_source(source), m_adapt(adapt)
    {
        for (std::vector<Pixel>& row : m_rows) {
            row.resize(std::size_t(source.width) + 2);
        }
        for (int y = -1; y <= 1; ++y) {
            read(y);
        }
    }

    int y() const { return m_y; }
    int width() const { return m_source.width; }
    const Pixel* above() const { return m_rows[slot(m_y - 1)].data() + 1; }
    const Pixel* own() const { return m_rows[slot(m_y)].data() + 1; }
    const Pixel* below() const { return m_rows[slot(m_y + 1)].data() + 1; }

    void next() { read(++m_y + 1); }

private:
    static std::size_t slot(int y) { return std::size_t(y + 3) % 3; }

    void read(int y)
    {
        const Pixel* row = m_source.row(std::clamp(y, 0, m_source.height - 1));
        std::vector<Pixel>& padded = m_rows[slot(y)];
        std::transform(row, row + width(), padded.begin() + 1, m_adapt);
        padded.front() = padded[1];
        padded.back() = padded[padded.size() - 2];
    }

    Raster<const Pixel> m_source;
    Adapt m_adapt;
    std::array<std::vector<Pixel>, 3> m_rows;
    int m_y = 0;
};

}  // namespace Zorv
