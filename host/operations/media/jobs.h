#pragma once

#include <zorv/core/interface.h>
#include <zorv/core/progressreporter.h>

#include <QFuture>
#include <QThread>
#include <QtConcurrent>
#include <deque>
#include <functional>
#include <memory>

namespace Operations {

/// The host's display of how far a piece of work is, for as long as it lives.
class JobProgress
{
public:
    JobProgress(const QString& title, int maximum)
        : m_reporter(Zorv::Interface::instance()->progress(title, 0))
    {
        m_reporter->update(0, maximum);
    }
    ~JobProgress() { m_reporter->finish(); }

    /// So many steps are done, of so many, 0 for those that were told; or another one. False once
    /// the person has given the work up.
    bool update(int value, int maximum = 0)
    {
        m_value = value;
        m_reporter->update(m_value, maximum);
        return !m_reporter->isCanceled();
    }
    bool step() { return update(m_value + 1); }

private:
    Q_DISABLE_COPY(JobProgress)
    Zorv::ProgressReporter* m_reporter;
    int m_value = 0;
};

/// Does `count` pieces of work on all processors, and shows how far it is.
///
/// `prepare(i)` is called in the caller's thread, in order, and gives what is to be done in another
/// one: a function without arguments that shares nothing with the others. `take(i, result)` gets
/// what that has made, in the caller's thread and in order. Only a few pieces are on their way at
/// any time, so the memory that they take does not grow with their count. False if the person has
/// given up; what was not taken is dropped then.
template <class Result>
bool runJobs(const QString& title, int count,
             const std::function<std::function<Result()>(int)>& prepare,
             const std::function<void(int, const Result&)>& take)
{
    JobProgress progress(title, count);
    const size_t onTheirWay = size_t(QThread::idealThreadCount()) * 4;
    std::deque<QFuture<Result>> jobs;
    int prepared = 0;
    bool goesOn = true;
    for (int i = 0; i < count && goesOn; ++i) {
        for (; prepared < count && jobs.size() < onTheirWay; ++prepared) {
            jobs.push_back(QtConcurrent::run(prepare(prepared)));
        }
        take(i, jobs.front().result());
        jobs.pop_front();
        goesOn = progress.step();
    }
    for (QFuture<Result>& job : jobs) {
        job.waitForFinished();
    }
    return goesOn;
}

}  // namespace Operations
