#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace Zorv {
class FollowedAnimation;
class TimeLineWidget;
}  // namespace Zorv

namespace App {

/// Plays an animation on a time line: tells which frame stands at the tick of its clock, goes
/// back to the loop point behind the last frame, and ends at a frame that never does. A tick that
/// the person moves by hand is told likewise.
class StagePlayer : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    StagePlayer(Zorv::FollowedAnimation* animation, Zorv::TimeLineWidget* timeLine,
                QObject* parent);

    bool isPlaying() const;

    /// From the first frame on; nothing while it plays, or without anything to be shown.
    void play();
    void stop();

    /// Moves the tick to the start of a frame, unless it stands within it or the clock runs.
    void goToFrame(int index);

signals:
    /// The frame at the tick. With `byHand` the person has moved the tick.
    void frameReached(int index, bool byHand);

    /// Playing has begun or ended, or a second has gone by.
    void stateChanged();

    /// A frame without an end was reached.
    void ended();

private:
    void tickChanged(unsigned tick);
    void playTick(unsigned tick);

    Zorv::FollowedAnimation* m_animation;
    Zorv::TimeLineWidget* m_timeLine;
    QElapsedTimer m_sinceTick;
    bool m_isMoving = false;  // the tick follows a frame
};

}  // namespace App
