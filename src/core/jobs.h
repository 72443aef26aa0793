#pragma once

#include "zorv_export.h"

#include <QString>

#include <deque>
#include <functional>
#include <memory>

namespace Zorv {

/// Runs `count` jobs on all processors and shows the progress under `title`.
///
/// `prepare(i)` runs in the caller's thread, in order. It returns the function that a worker thread
/// will run; this function must not share data with the others. `take(i)` runs in the caller's
/// thread, in order, once that job is done. Only a few jobs per thread are in flight at a time
/// (more if they are small), so memory does not grow with `count`. Returns false if the user
/// cancelled: no more results are taken, jobs that had not started are skipped, and all running
/// ones have finished.
///
/// While waiting, the function processes events except user input, so that the window is repainted.
/// Between two jobs the host's progress display may process user input as well. So the objects that
/// `take` works on may be gone by then. Call from the main thread.
ZORV_EXPORT bool runJobs(const QString& title, int count,
                         const std::function<std::function<void()>(int)>& prepare,
                         const std::function<void(int)>& take);

/// The same for jobs with a result: `take(i, result)` receives it, and it is freed afterwards.
/// `Result` needs a default constructor.
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
