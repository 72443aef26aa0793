#pragma once

#include <QImage>
#include <QVector>

#include <functional>

namespace Family {

class SpriteCollection;

/// Work on the sprites of a collection on several threads.
struct ImageJob
{
    QVector<int> rows;  ///< the sprites, in processing order

    /// Called for each sprite on any of the threads, never concurrently for the same row. `image`
    /// is null if the sprite has none. It must not access the collection.
    std::function<void(int row, const QImage& image)> work;

    /// Called in the calling thread from time to time with the number of processed sprites; false
    /// cancels. May be empty.
    std::function<bool(int done)> progress;

    int threads = 0;  ///< 0: one per core
};

/// Unpacks sprites on several threads and does the work. Needs memory for a few sprites only. False
/// if it was cancelled. Call it in the thread of the collection; it blocks.
bool forEachImage(const SpriteCollection& sprites, const ImageJob& job);

}  // namespace Family
