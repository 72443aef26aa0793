#include "core/jobs.h"

#include "core/progress.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrent>

namespace Zorv {

namespace {

/// Pieces under way for each thread: enough that none is idle while one result is taken. Of small
/// ones it takes more, or all are done before this thread has its turn again beside other work.
constexpr int LeastPerThread = 4;
constexpr int MostPerThread = 32;
constexpr qint64 TimeUnderWay = 40;  // milliseconds

size_t underWay(qint64 elapsed, int done)
{
    const int perThread = int(qBound<qint64>(
        LeastPerThread, elapsed > 0 ? TimeUnderWay * done / elapsed : 0, MostPerThread));
    return size_t(QThreadPool::globalInstance()->maxThreadCount() * perThread);
}

/// Waits without keeping the window from being painted. What the person does waits, too: progress
/// takes it up between two pieces of work.
void waitFor(const QFuture<void>& job)
{
    if (job.isFinished()) {
        return;
    }
    QEventLoop loop;
    QFutureWatcher<void> watcher;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(job);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

bool runJobs(const QString& title, int count,
             const std::function<std::function<void()>(int)>& prepare,
             const std::function<void(int)>& take)
{
    Progress progress(title, count);
    QElapsedTimer clock;
    clock.start();
    std::deque<QFuture<void>> jobs;
    int prepared = 0;
    bool goesOn = true;
    for (int i = 0; i < count && goesOn; ++i) {
        const size_t onTheirWay = underWay(clock.elapsed(), i);
        for (; prepared < count && jobs.size() < onTheirWay; ++prepared) {
            jobs.push_back(QtConcurrent::run(prepare(prepared)));
        }
        waitFor(jobs.front());
        take(i);
        jobs.pop_front();
        goesOn = progress.step();
    }
    for (QFuture<void>& job : jobs) {
        job.waitForFinished();
    }
    return goesOn;
}

}  // namespace Zorv
