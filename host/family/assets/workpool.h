#pragma once

#include <QThreadPool>

#include <atomic>
#include <functional>

namespace Family {

/// Runs work on several threads, one batch at a time.
class WorkPool
{
public:
    /// 0: one thread per core.
    explicit WorkPool(int threads = 0);

    /// Waits for the current batch.
    ~WorkPool();

    int threads() const { return m_pool.maxThreadCount(); }

    /// Calls `work(i)` once for each `i` below `count`, on any of the threads. The previous batch
    /// must be finished.
    void start(int count, std::function<void(int)> work);
    void wait();

private:
    Q_DISABLE_COPY(WorkPool)
    QThreadPool m_pool;
    std::function<void(int)> m_work;
    std::atomic_int m_next{0};
};

}  // namespace Family
