#pragma once

#include <QVector>

#include <array>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// How often a palette, and each of its slots, is used.
struct PaletteUses
{
    struct Entry
    {
        int sprites = 0;    ///< sprites with at least one pixel of this slot
        qint64 pixels = 0;  ///< pixels in all sprites together
    };
    int sprites = 0;
    std::array<Entry, 256> entries;
};

/// The use counts of all palettes of a collection.
struct PaletteUseCount
{
    QVector<PaletteUses> palettes;  ///< in file order
    QVector<int> broken;            ///< rows of sprites whose pixels cannot be read
    bool isCanceled = false;
};

/// Counts the sprites that have each palette, even where remaps show another one. Pixels are
/// unpacked on all processors, with progress. Pixels shared by several sprites are unpacked once.
PaletteUseCount countUses(const Family::SpriteCollection& sprites);

}  // namespace Operations
