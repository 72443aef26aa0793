#pragma once

#include "family/assets/familypalette.h"

#include <QVector>
#include <array>
#include <functional>

namespace Family {

class SpriteCollection;

/// For each index that a pixel can have another one.
using IndexMap = std::array<quint8, 256>;

/// The nearest of other colours for each of these; the same index if it has the same colour there.
IndexMap nearestIndices(const PaletteColors& from, const PaletteColors& to);

/// Sprites whose pixels get other indices.
struct IndexMapping
{
    QVector<int> rows;
    IndexMap map;
};

/// What to do with the pixels of a collection, on several threads.
struct MappingJob
{
    QVector<IndexMapping> mappings;  ///< a sprite is in one of them at most

    /// Called on the calling thread now and then with the number of streams that are done, and how
    /// many there are; false gives up. May be empty.
    std::function<bool(int done, int count)> progress;

    int threads = 0;  ///< how many; 0 for as many as there are cores
};

/// Gives pixels other indices, as one step of undo. Pixels that sprites share are unpacked once,
/// and packed again in their own codec, or in the smallest one if that cannot hold them; memory is
/// that of a few sprites. Colours are left alone, and so are true colour and what is broken: the
/// rows of broken sprites go into `broken`.
///
/// False if it was given up; nothing is changed then. The calling thread is that of the
/// collection, and waits.
bool mapIndices(SpriteCollection* sprites, const MappingJob& job, QVector<int>* broken);

}  // namespace Family
