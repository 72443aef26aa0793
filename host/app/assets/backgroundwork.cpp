#include "app/assets/backgroundwork.h"

#include <QMutex>
#include <QThreadPool>

// Requests wait in a stack, so the newest runs first. A few worker threads take from it. A worker
// returns a function, which is run in the owner's thread. All workers share a gate with a lock and
// a pointer to the owner; the destructor clears the pointer, so that late results are dropped and
// nobody has to wait.

namespace App {

namespace {

constexpr int MaxRunning = 2;

}  // namespace

/// Worker threads reach the owner only through this gate, which outlives it.
struct BackgroundWork::Gate
{
    QMutex lock;
    BackgroundWork* owner;
};

BackgroundWork::BackgroundWork(QObject* parent) : QObject(parent), m_gate(std::make_shared<Gate>())
{
    m_gate->owner = this;
}

BackgroundWork::~BackgroundWork()
{
    const QMutexLocker locker(&m_gate->lock);
    m_gate->owner = nullptr;
}

void BackgroundWork::ask(const Work& work)
{
    m_waiting.push_back(work);
    start();
}

void BackgroundWork::start()
{
    while (m_running < MaxRunning && !m_waiting.empty()) {
        ++m_running;
        QThreadPool::globalInstance()->start([work = m_waiting.back(), gate = m_gate] {
            const Then then = work();
            const QMutexLocker locker(&gate->lock);
            if (BackgroundWork* const owner = gate->owner) {
                const auto end = [owner, then] {
                    --owner->m_running;
                    owner->start();
                    then();
                };
                QMetaObject::invokeMethod(owner, end, Qt::QueuedConnection);
            }
        });
        m_waiting.pop_back();
    }
}

}  // namespace App
