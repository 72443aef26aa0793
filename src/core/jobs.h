#pragma once

#include "zorv_export.h"

#include <QString>

#include <deque>
#include <functional>
#include <memory>

namespace Zorv {

/// Does `count` pieces of work on all processors, and shows how far it is under `title`.
///
/// `prepare(i)` is called in the caller's thread, in order, and gives what is to be done in another
/// one: a function that shares nothing with the others. `take(i)` is called in the caller's thread,
/// in order, when that piece is done. Only a few pieces for each thread are on their way at any
/// time, more of small ones than of large ones, so the memory that they take does not grow with
/// their count. False if the person has given up: then nothing more is taken, what had not begun is
/// left out, and all that had is over.
///
/// While it waits, events other than the person's are processed, so that the window is painted;
/// between two pieces the display of the host may take up those, too. So what `take` works on may
/// be gone by then. Called in the main thread.
ZORV_EXPORT bool runJobs(const QString& title, int count,
                         const std::function<std::function<void()>(int)>& prepare,
                         const std::function<void(int)>& take);

/// The same for pieces that make something: `take(i, result)` gets it, and it is dropped behind.
/// A `Result` has a constructor without arguments.
///
///     runJobs<QImage>(title, files.size(),
///                     [&](int i) { return [file = files[i]] { return QImage(file); }; },
///                     [&](int i, const QImage& image) { images.insert(files[i], image); });
template <class Result>
bool runJobs(const QString& title, int count,
             const std::function<std::function<Result()>(int)>& prepare,
             const std::function<void(int, const Result&)>& take)
{
    std::deque<std::shared_ptr<Result>> results;
    return runJobs(
        title, count,
        [&](int i) -> std::function<void()> {
            results.push_back(std::make_shared<Result>());
            return [work = prepare(i), result = results.back()] { *result = work(); };
        },
        [&](int i) {
            const std::shared_ptr<Result> result = results.front();
            results.pop_front();
            take(i, *result);
        });
}

}  // namespace Zorv
