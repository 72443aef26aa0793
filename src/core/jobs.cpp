#include "core/jobs.h"

#include "core/progress.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrent>

namespace Zorv {

namespace {

/// Pieces under way for each thread: enough that none is idle while one result is taken.
constexpr int JobsPerThread = 4;

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
    const size_t onTheirWay =
        size_t(QThreadPool::globalInstance()->maxThreadCount()) * JobsPerThread;
    std::deque<QFuture<void>> jobs;
    int prepared = 0;
    bool goesOn = true;
    for (int i = 0; i < count && goesOn; ++i) {
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
