#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QFlags>

#include <array>

namespace Zorv {

/// An order of the 256 entries of a palette: for each new slot, the old slot of its entry. To keep
/// the picture the same, map its pixels too: `inverse(order)[pixel]`.
using PaletteOrder = std::array<quint8, 256>;

/// The order that changes nothing.
ZORV_EXPORT PaletteOrder sameOrder();

/// True if each old slot occurs exactly once.
ZORV_EXPORT bool isOrder(const PaletteOrder& order);

/// For each old slot, its new slot. `order` must contain each slot once.
ZORV_EXPORT PaletteOrder inverse(const PaletteOrder& order);

/// Applies an order to 256 entries.
ZORV_EXPORT void reorder(RGBA* palette, const PaletteOrder& order);

/// The order that moves entry `from` to slot `to`; the entries between shift by one.
ZORV_EXPORT PaletteOrder movedOrder(quint8 from, quint8 to);

/// The sort key. All but the channels are those of OKLCh.
enum class PaletteKey {
    Hue,        ///< greys, then 24 steps of hue from red on, each from dark to light
    Lightness,  ///< from dark to light
    Chroma,     ///< from grey to colourful
    Red,
    Green,
    Blue,
    Alpha
};

enum class PaletteSort {
    Plain = 0,
    Descending = 1,       ///< reverse; equal entries still keep their order
    MovesFirst = 2,       ///< also sorts entry 0
    MovesTransparent = 4  ///< also sorts entries of alpha 0
};
Q_DECLARE_FLAGS(PaletteSorting, PaletteSort)
Q_DECLARE_OPERATORS_FOR_FLAGS(PaletteSorting)

/// The order that sorts the entries of a palette within the slots they have now. The sort is
/// stable. Entry 0 and transparent entries stay in place unless `sorting` includes them. A
/// selection is a pointer to 256 `bool`; null means all. Unselected entries stay in place.
ZORV_EXPORT PaletteOrder sortedOrder(const RGBA* palette, PaletteKey key,
                                     PaletteSorting sorting = PaletteSort::Plain,
                                     const bool* selection = nullptr);

}  // namespace Zorv
