#include "window/steadyclock.h"

namespace Player {

namespace {

constexpr qint64 Second = 1000000000;
constexpr qint64 Millisecond = 1000000;
constexpr qint64 Early = Millisecond / 4;  // close enough to be due
constexpr qint64 MostDelay = Second / 4;

}  // namespace

SteadyClock::SteadyClock(QObject* parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SteadyClock::look);
}

void SteadyClock::start()
{
    m_time.start();
    m_start = 0;
    m_ticks = 0;
    plan();
}

void SteadyClock::stop()
{
    m_timer.stop();
}

/// Calculated from the start time, so that rounding errors do not add up.
qint64 SteadyClock::dueTime() const
{
    return m_start + (m_ticks + 1) * Second / TicksASecond;
}

void SteadyClock::plan()
{
    const qint64 wait = dueTime() - m_time.nsecsElapsed();
    m_timer.start(int(qMax<qint64>((wait + Millisecond - 1) / Millisecond, 0)));
}

void SteadyClock::look()
{
    const qint64 delay = m_time.nsecsElapsed() - dueTime();
    if (delay < -Early) {
        plan();
        return;
    }
    ++m_ticks;
    if (delay > MostDelay) {
        m_start += delay;
    }
    plan();
    emit ticked();
}

}  // namespace Player
