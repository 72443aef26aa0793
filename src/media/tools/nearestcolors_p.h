#pragma once

#include "media/colortypes.h"

#include <QVector>

#include <array>
#include <memory>
#include <vector>

namespace Zorv {

/// Finds the nearest of up to 256 colours, optimised for many queries.
///
/// The distance is the squared distance over red, green, blue and alpha; among equals the lowest
/// index wins. A colour of alpha 0 takes the first entry of the lowest alpha, whatever its colour.
///
/// Colour space is divided into cells. Each cell that is queried keeps a list of the entries that
/// can be nearest to any colour in it.
class NearestColors
{
public:
    /// `palette` has 1 to 256 entries; further ones are ignored.
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

    /// For one channel and a range of its values: the squared distances of all entries to the
    /// nearest and to the farthest value.
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

    /// An entry; or the head of a cell's list, whose index is the number of entries.
    struct Entry
    {
        qint16 channel[4];
        qint16 index;
    };

    quint8 search(quint32 color);
    const Range& range(size_t channel, int number);
    quint32 fillCell(quint32 cell);

    std::vector<Entry> m_entries;                                    ///< without duplicates
    std::array<std::array<std::unique_ptr<Range>, 48>, 4> m_ranges;  ///< created on demand
    std::vector<quint32> m_cells;     ///< start of each cell's list, 0 before it is filled
    std::vector<Entry> m_candidates;  ///< the lists: a head and the entries
    quint8 m_transparent = 0;
    std::array<Found, 1 << FoundBits> m_found;  ///< a cache of recent results
};

}  // namespace Zorv
