#include "family/assets/workpool.h"

#include <QRunnable>
#include <QThread>

#include <algorithm>

namespace Family {

WorkPool::WorkPool(int threads)
{
    m_pool.setMaxThreadCount(threads > 0 ? threads : QThread::idealThreadCount());
}

WorkPool::~WorkPool()
{
    wait();
}

void WorkPool::start(int count, std::function<void(int)> work)
{
    m_work = std::move(work);
    m_next = 0;
    // Each thread takes one piece after another until none is left.
    for (int i = 0; i < std::min(count, m_pool.maxThreadCount()); ++i) {
        m_pool.start(QRunnable::create([this, count] {
            for (int piece = m_next++; piece < count; piece = m_next++) {
                m_work(piece);
            }
        }));
    }
}

void WorkPool::wait()
{
    m_pool.waitForDone();
    m_next.load();  // synchronizes memory: everything the threads wrote is visible from here on
}

}  // namespace Family
