#include "core/jobs.h"

#include "core/progress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrent>

#include <array>
#include <atomic>

// Jobs run in the global thread pool. A queue holds the jobs in flight, in order. The main thread
// waits for the first one, takes its result and starts new jobs, up to the limit that `Pace`
// computes from the duration of the last jobs. Cancelling sets a flag that jobs check before they
// start; the running ones are waited for.

namespace Zorv {

namespace {

/// Jobs in flight per thread. There must be enough to keep all threads busy while the main thread
/// takes one result. Small jobs need more of them, or all are done before the main thread gets its
/// next turn. Large jobs get the minimum, because each may hold an image in memory.
constexpr int LeastPerThread = 4;
constexpr int MostPerThread = 12;
constexpr qint64 TimeUnderWay = 40'000'000;  // nanoseconds

/// Process events after this many milliseconds, even if no job has to be waited for.
constexpr int TurnTime = 10;

/// Computes how many jobs may be in flight, from the time the last few have taken.
class Pace
{
public:
    Pace() { m_clock.start(); }
    int underWay(int done)
    {
        const qint64 now = m_clock.nsecsElapsed();
        qint64& before = m_times[size_t(done) % m_times.size()];  // the oldest
        const qint64 count = qMin(done, int(m_times.size()));
        const qint64 elapsed = qMax<qint64>(now - before, 1);
        before = now;
        const int threads = QThreadPool::globalInstance()->maxThreadCount();
        return int(qBound<qint64>(threads * LeastPerThread, TimeUnderWay * count / elapsed,
                                  threads * MostPerThread));
    }

private:
    QElapsedTimer m_clock;
    std::array<qint64, 8> m_times{};
};

/// Waits while the window is repainted. User input is left for later: the progress display handles
/// it between two jobs.
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
    Pace pace;
    QElapsedTimer turn;
    turn.start();
    const auto isGivenUp = std::make_shared<std::atomic_bool>(false);
    std::deque<QFuture<void>> jobs;
    int prepared = 0;
    bool goesOn = true;
    for (int i = 0; i < count && goesOn; ++i) {
        const auto onTheirWay = size_t(pace.underWay(i));
        for (; prepared < count && jobs.size() < onTheirWay; ++prepared) {
            jobs.push_back(QtConcurrent::run([work = prepare(prepared), isGivenUp] {
                if (!*isGivenUp) {
                    work();
                }
            }));
        }
        waitFor(jobs.front());
        take(i);
        jobs.pop_front();
        goesOn = progress.step();
        if (turn.hasExpired(TurnTime)) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            turn.restart();
        }
    }
    *isGivenUp = true;
    for (QFuture<void>& job : jobs) {
        job.waitForFinished();
    }
    return goesOn;
}

}  // namespace Zorv
