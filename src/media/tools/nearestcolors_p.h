#pragma once

#include "media/colortypes.h"

#include <QVector>

#include <array>
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
    quint8 find(quint32 color);

private:
    static const int Size = 256;
    using Row = std::array<quint32, Size>;

    /// The squared distances of the entries, in one channel, from the near and from the far side
    /// of each range of its values.
    struct Axis
    {
        std::vector<Row> nearest;
        std::vector<Row> farthest;
    };

    struct Entry
    {
        qint32 channel[4];
    };

    void addRange(int channel, int low, int high);
    quint32 fillCell(quint32 cell);

    std::array<Entry, Size> m_entries;
    std::vector<quint8> m_indices;  ///< of the different colours
    std::array<Axis, 4> m_axes;
    std::vector<quint32> m_cells;  ///< the place of each one's candidates, 0 before it is filled
    std::vector<quint8> m_candidates;  ///< for each cell their number, less 1, and their indices
    quint8 m_transparent = 0;
};

}  // namespace Zorv
