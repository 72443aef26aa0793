#pragma once

#include "media/colortypes.h"

#include <QVector>

#include <array>
#include <memory>
#include <vector>

namespace Zorv {

/// Finds the nearest of up to 256 colours for many.
///
/// The distance is the squared one over red, green, blue and alpha; the lowest index wins among
/// equals. A colour of alpha 0 takes the first entry of the lowest alpha, whatever its colour.
///
/// Colour space is cut into cells; those that are asked for keep the entries that may be the
/// nearest to some colour in them.
class NearestColors
{
public:
    /// `palette` has 1 to 256 entries; more are left aside.
    explicit NearestColors(const QVector<RGBA>& palette);

    /// `color` is a `QRgb`.
    quint8 find(quint32 color)
    {
        Found& found = m_found[color * 0x9E3779B1U >> (32 - FoundBits)];
        if (found.color != color) {
            found = {color, search(color)};
        }
        return found.index;
    }

private:
    static constexpr int Size = 256;
    static constexpr int FoundBits = 11;
    using Row = std::array<quint16, Size>;

    /// The squared distances of the entries, in one channel, from the near and from the far end
    /// of a range of its values.
    struct Range
    {
        Row nearest;
        Row farthest;
    };

    struct Found
    {
        quint32 color;
        quint8 index;
    };

    /// An entry, or, in front of those of a cell, their number.
    struct Entry
    {
        qint16 channel[4];
        qint16 index;
    };

    quint8 search(quint32 color);
    const Range& range(size_t channel, int number);
    quint32 fillCell(quint32 cell);

    std::vector<Entry> m_entries;                                    ///< the different colours
    std::array<std::array<std::unique_ptr<Range>, 48>, 4> m_ranges;  ///< those that were needed
    std::vector<quint32> m_cells;     ///< the place of each one's candidates, 0 before it is filled
    std::vector<Entry> m_candidates;  ///< for each cell a head and the entries
    quint8 m_transparent = 0;
    std::array<Found, 1 << FoundBits> m_found;  ///< of the last colours that were asked for
};

}  // namespace Zorv
