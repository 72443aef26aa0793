#pragma once

#include "family/assets/familypalette.h"

#include <QVector>
#include <array>
#include <functional>

namespace Family {

class SpriteCollection;

/// Maps each colour index of a pixel to another one.
using IndexMap = std::array<quint8, 256>;

/// For each colour in `from` the nearest colour in `to`; the same index if the colours at it are
/// equal.
IndexMap nearestIndices(const PaletteColors& from, const PaletteColors& to);

/// Sprites whose pixels get other indices.
struct IndexMapping
{
    QVector<int> rows;
    IndexMap map;
};

/// A conversion of pixels in a collection, on several threads.
struct MappingJob
{
    QVector<IndexMapping> mappings;  ///< a sprite may be in at most one of them

    /// Called in the calling thread from time to time, with the number of processed streams and
    /// their total; false cancels. May be empty.
    std::function<bool(int done, int count)> progress;

    int threads = 0;  ///< 0: one per core
};

/// Replaces the indices of pixels, as one undo step. Shared pixels are unpacked only once. They are
/// packed again in their own codec, or in the smallest suitable one if that cannot hold them. Needs
/// memory for a few sprites only. Colours, true-colour pixels and broken pixels stay unchanged; the
/// rows of broken sprites are put into `broken`.
///
/// False if it was cancelled; then nothing is changed. Call it in the thread of the collection; it
/// blocks.
bool mapIndices(SpriteCollection* sprites, const MappingJob& job, QVector<int>* broken);

}  // namespace Family
