#pragma once

#include <QThreadPool>

#include <atomic>
#include <functional>

namespace Family {

/// Does pieces of work on several threads, a batch at a time.
class WorkPool
{
public:
    /// 0 for as many threads as there are cores.
    explicit WorkPool(int threads = 0);

    /// Waits for the batch that was begun.
    ~WorkPool();

    int threads() const { return m_pool.maxThreadCount(); }

    /// Calls `work(i)` for each `i` below `count`, on any of the threads, each once. The batch
    /// before has to be done.
    void start(int count, std::function<void(int)> work);
    void wait();

private:
    Q_DISABLE_COPY(WorkPool)
    QThreadPool m_pool;
    std::function<void(int)> m_work;
    std::atomic_int m_next{0};
};

}  // namespace Family
