#include "app/stage/stageplayer.h"

#include <zorv/animation/followedanimation.h>
#include <zorv/animation/timeline/timelinewidget.h>

#include <QScopedValueRollback>

namespace App {

using Zorv::FrameTicks;

namespace {

constexpr unsigned TicksPerSecond = 60;

// Behind a menu the clock stands still. It would make up for that by running fast.
constexpr qint64 LongestStall = 250;  // milliseconds

}  // namespace

StagePlayer::StagePlayer(Zorv::FollowedAnimation* animation, Zorv::TimeLineWidget* timeLine,
                         QObject* parent)
    : QObject(parent), m_animation(animation), m_timeLine(timeLine)
{
    connect(timeLine, &Zorv::TimeLineWidget::tickChanged, this, &StagePlayer::tickChanged);
}

bool StagePlayer::isPlaying() const
{
    return m_timeLine->isPlaying();
}

void StagePlayer::play()
{
    if (isPlaying() || m_animation->ticks().total() == 0) {
        return;
    }
    {
        const QScopedValueRollback<bool> moving(m_isMoving, true);
        m_timeLine->setCurrentTick(0);
    }
    m_sinceTick.start();
    m_timeLine->play();
    emit stateChanged();
}

void StagePlayer::stop()
{
    if (isPlaying()) {
        m_timeLine->stop();
        emit stateChanged();
    }
}

void StagePlayer::goToFrame(int index)
{
    const FrameTicks& ticks = m_animation->ticks();
    if (!isPlaying() && ticks.frameAt(m_timeLine->currentTick()) != index) {
        const QScopedValueRollback<bool> moving(m_isMoving, true);
        m_timeLine->setCurrentTick(unsigned(ticks.firstTick(index)));
    }
}

void StagePlayer::tickChanged(unsigned tick)
{
    if (m_isMoving) {
        return;
    }
    if (isPlaying()) {
        playTick(tick);
    } else {
        emit frameReached(m_animation->ticks().frameAt(tick), true);
    }
}

void StagePlayer::playTick(unsigned tick)
{
    if (m_sinceTick.restart() > LongestStall) {
        m_timeLine->play();  // tells the tick once more
        return;
    }
    const FrameTicks& ticks = m_animation->ticks();
    if (ticks.total() == 0) {
        stop();
        return;
    }
    if (ticks.total() > 0 && tick >= unsigned(ticks.total())) {
        m_timeLine->setCurrentTick(unsigned(ticks.loopTick()));  // tells that tick
        return;
    }
    const int frame = ticks.frameAt(tick);
    const bool isLast = ticks.delay(frame) < 0;
    emit frameReached(frame, false);
    if (isLast) {
        stop();
        emit ended();
    } else if (tick % TicksPerSecond == 0) {
        emit stateChanged();
    }
}

}  // namespace App
