#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QFlags>

#include <array>

namespace Zorv {

/// Another order of the 256 entries of a palette: for each slot the old slot of the entry that
/// stands there then. The picture stays if every pixel goes along: `inverse(order)[pixel]`.
using PaletteOrder = std::array<quint8, 256>;

/// All entries where they are.
ZORV_EXPORT PaletteOrder sameOrder();

/// True if each old slot is there once.
ZORV_EXPORT bool isOrder(const PaletteOrder& order);

/// For each old slot the new one. `order` has each once.
ZORV_EXPORT PaletteOrder inverse(const PaletteOrder& order);

/// Puts 256 entries in an order.
ZORV_EXPORT void reorder(RGBA* palette, const PaletteOrder& order);

/// The order in which entry `from` has been moved to slot `to`, those between moving up by one.
ZORV_EXPORT PaletteOrder movedOrder(quint8 from, quint8 to);

/// What entries are sorted by. All but the channels are those of OKLCh.
enum class PaletteKey {
    Hue,        ///< greys first, then 24 steps of hue from red on, each from dark to light
    Lightness,  ///< from dark to light
    Chroma,     ///< from grey to colourful
    Red,
    Green,
    Blue,
    Alpha
};

enum class PaletteSort {
    Plain = 0,
    Descending = 1,       ///< the other way round; equal entries still keep their order
    MovesFirst = 2,       ///< entry 0 is sorted, too
    MovesTransparent = 4  ///< entries of alpha 0 are sorted, too
};
Q_DECLARE_FLAGS(PaletteSorting, PaletteSort)
Q_DECLARE_OPERATORS_FOR_FLAGS(PaletteSorting)

/// The order that sorts the entries of a palette among the slots that they have now. Equal ones
/// keep their order. Entry 0 and transparent ones keep their places unless they are asked for. A
/// selection is a pointer to 256 `bool`; null means all, and what is not selected stays.
ZORV_EXPORT PaletteOrder sortedOrder(const RGBA* palette, PaletteKey key,
                                     PaletteSorting sorting = PaletteSort::Plain,
                                     const bool* selection = nullptr);

}  // namespace Zorv
