#pragma once

#include <QVector>

#include <array>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// What uses a palette, and each of its slots.
struct PaletteUses
{
    struct Entry
    {
        int sprites = 0;    ///< that have a pixel of it
        qint64 pixels = 0;  ///< of all of them together
    };
    int sprites = 0;
    std::array<Entry, 256> entries;
};

/// What is used of all palettes of a collection.
struct PaletteUseCount
{
    QVector<PaletteUses> palettes;  ///< in the order of the file
    QVector<int> broken;            ///< rows of sprites whose pixels are not to be had
    bool isCanceled = false;
};

/// Counts for each palette the sprites that have it, whatever remaps show instead. Pixels are
/// unpacked on all processors, with progress, and those that several sprites share once.
PaletteUseCount countUses(const Family::SpriteCollection& sprites);

}  // namespace Operations
