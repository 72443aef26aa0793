#include "media/tools/paletteorder.h"

#include "media/tools/colorspaces.h"

#include <QVector>

#include <algorithm>
#include <numeric>

namespace Zorv {

namespace {

constexpr double Grey = 0.02;  // chroma below which no hue is visible

// The sort key; the second value breaks ties of the first.
using Place = std::pair<double, double>;

Place placeOf(RGBA color, PaletteKey key)
{
    const OKLCh look = toOKLCh(color);
    switch (key) {
    case PaletteKey::Hue:
        return {look.c < Grey ? -1 : int(look.h / 15), look.l};
    case PaletteKey::Lightness:
        return {look.l, 0};
    case PaletteKey::Chroma:
        return {look.c, 0};
    case PaletteKey::Red:
        return {color.r, 0};
    case PaletteKey::Green:
        return {color.g, 0};
    case PaletteKey::Blue:
        return {color.b, 0};
    case PaletteKey::Alpha:
        break;
    }
    return {color.a, 0};
}

}  // namespace

PaletteOrder sameOrder()
{
    PaletteOrder order;
    std::iota(order.begin(), order.end(), quint8(0));
    return order;
}

bool isOrder(const PaletteOrder& order)
{
    return std::is_permutation(order.begin(), order.end(), sameOrder().begin());
}

PaletteOrder inverse(const PaletteOrder& order)
{
    PaletteOrder result{};
    for (size_t i = 0; i < order.size(); ++i) {
        result[order[i]] = quint8(i);
    }
    return result;
}

void reorder(RGBA* palette, const PaletteOrder& order)
{
    std::array<RGBA, 256> old;
    std::copy_n(palette, old.size(), old.begin());
    std::transform(order.begin(), order.end(), palette, [&old](quint8 slot) { return old[slot]; });
}

PaletteOrder movedOrder(quint8 from, quint8 to)
{
    PaletteOrder order = sameOrder();
    if (from < to) {
        std::rotate(order.begin() + from, order.begin() + from + 1, order.begin() + to + 1);
    } else {
        std::rotate(order.begin() + to, order.begin() + from, order.begin() + from + 1);
    }
    return order;
}

PaletteOrder sortedOrder(const RGBA* palette, PaletteKey key, PaletteSorting sorting,
                         const bool* selection)
{
    QVector<quint8> moving;
    for (int i = 0; i < 256; ++i) {
        const bool moves = (i > 0 || sorting.testFlag(PaletteSort::MovesFirst)) &&
                           (palette[i].a > 0 || sorting.testFlag(PaletteSort::MovesTransparent)) &&
                           (!selection || selection[i]);
        if (moves) {
            moving.append(quint8(i));
        }
    }
    std::array<Place, 256> places;
    std::transform(palette, palette + 256, places.begin(),
                   [key](RGBA color) { return placeOf(color, key); });
    QVector<quint8> sorted = moving;
    const bool isDescending = sorting.testFlag(PaletteSort::Descending);
    std::stable_sort(sorted.begin(), sorted.end(), [&](quint8 a, quint8 b) {
        return isDescending ? places[b] < places[a] : places[a] < places[b];
    });
    PaletteOrder order = sameOrder();
    for (int i = 0; i < sorted.size(); ++i) {
        order[moving[i]] = sorted[i];
    }
    return order;
}

}  // namespace Zorv
