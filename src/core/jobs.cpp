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

namespace Zorv {

namespace {

/// Pieces under way for each thread: enough that none is idle while one result is taken. Of small
/// ones it takes more, or all are done before this thread has its turn again beside other work. Of
/// large ones, each of which may hold an image, only the least.
constexpr int LeastPerThread = 4;
constexpr int MostPerThread = 12;
constexpr qint64 TimeUnderWay = 40'000'000;  // nanoseconds

/// Milliseconds after which events have their turn, if there is nothing to wait for.
constexpr int TurnTime = 10;

/// How many pieces may be under way, by the time that the last few have taken.
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
