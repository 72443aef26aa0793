#pragma once

#include <QImage>
#include <QVector>

#include <functional>

namespace Family {

class SpriteCollection;

/// What to do with the sprites of a collection on several threads.
struct ImageJob
{
    QVector<int> rows;  ///< which sprites, in which order

    /// Called for each on any of the threads, at most once at a time for a row; the image is null
    /// if the sprite has none. It must not touch the collection.
    std::function<void(int row, const QImage& image)> work;

    /// Called on the calling thread now and then with the number of sprites that are done; false
    /// gives up. May be empty.
    std::function<bool(int done)> progress;

    int threads = 0;  ///< how many; 0 for as many as there are cores
};

/// Unpacks sprites on several threads and does the work; memory is that of a few sprites,
/// however many there are. False if it was given up. The calling thread is that of the
/// collection, and waits.
bool forEachImage(const SpriteCollection& sprites, const ImageJob& job);

}  // namespace Family
