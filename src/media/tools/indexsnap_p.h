#pragma once

#include <QImage>
#include <QRgb>

#include <vector>

namespace Zorv {

/// Finds the entry of a colour table that stands best for a colour.
///
/// A colour that is more transparent than not takes the first transparent entry, if there is one.
/// Any other takes the nearest of those that are not, the lowest one among equals: the squared
/// distance over red, green and blue, weighted by the colour's alpha, plus that over alpha.
/// Colours met before are remembered.
class NearestIndex
{
public:
    /// `colors` has 1 to 256 entries.
    explicit NearestIndex(const QVector<QRgb>& colors);

    quint8 operator()(QRgb color)
    {
        Known& slot = known[(color * 2654435761U) >> (32 - KnownBits)];
        if (slot.index < 0 || slot.color != color) {
            slot = {color, search(color)};
        }
        return quint8(slot.index);
    }

private:
    struct Known
    {
        QRgb color = 0;
        int index = -1;
    };
    struct Entry
    {
        int r, g, b, a;
        int index;
    };
    static constexpr int KnownBits = 14;

    int search(QRgb color) const;

    std::vector<Entry> entries;
    int transparent = -1;
    std::vector<Known> known;
};

/// The pixels of an indexed image as colours, in `Format_RGB32` if all entries of its table are
/// opaque and else in `Format_ARGB32`. What is transparent or behind the table is 0.
QImage colorsOf(const QImage& indexed);

/// Gives an indexed image the colours of another of the same size, as near as its colour table
/// allows. A pixel that has its colour already keeps its index, also where two entries are equal.
void snapToColors(QImage& indexed, const QImage& colors);

}  // namespace Zorv
