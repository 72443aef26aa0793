#pragma once

#include "core/progress_p.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QString>
#include <QThread>
#include <QtConcurrent>

#include <deque>
#include <functional>

namespace Zorv {

/// Waits without keeping the window from being painted. What the person does waits, too: progress
/// takes it up between two pieces of work.
template <class Result>
void waitFor(const QFuture<Result>& job)
{
    if (job.isFinished()) {
        return;
    }
    QEventLoop loop;
    QFutureWatcher<Result> watcher;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(job);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

/// Does `count` pieces of work on all processors, and shows how far it is.
///
/// `prepare(i)` is called in the caller's thread, in order, and gives what is to be done in another
/// one: a function without arguments that shares nothing with the others. `take(i, result)` gets
/// what that has made, in the caller's thread and in order. Only a few pieces are on their way at
/// any time, so the memory that they take does not grow with their count. False if the person has
/// given up; what was not taken is dropped then. Events are processed between two pieces.
template <class Result>
bool runJobs(const QString& title, int count,
             const std::function<std::function<Result()>(int)>& prepare,
             const std::function<void(int, const Result&)>& take)
{
    Progress progress(title, count);
    const size_t onTheirWay = size_t(QThreadPool::globalInstance()->maxThreadCount()) * 4;
    std::deque<QFuture<Result>> jobs;
    int prepared = 0;
    bool goesOn = true;
    for (int i = 0; i < count && goesOn; ++i) {
        for (; prepared < count && jobs.size() < onTheirWay; ++prepared) {
            jobs.push_back(QtConcurrent::run(prepare(prepared)));
        }
        waitFor(jobs.front());
        take(i, jobs.front().result());
        jobs.pop_front();
        goesOn = progress.step();
    }
    for (QFuture<Result>& job : jobs) {
        job.waitForFinished();
    }
    return goesOn;
}

}  // namespace Zorv
