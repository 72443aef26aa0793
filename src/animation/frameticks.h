#pragma once

#include "animation/timeline/timeline.h"
#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class AnimationCode;

/// Which frame of an animation stands at which tick.
///
/// Frames stand one behind the other from tick 0 on, each for its delay. One with a delay of 0 is
/// never shown, one with a negative delay never ends. Ticks end at the largest `int`. A value that
/// knows no node; finding a frame is logarithmic.
class ZORV_EXPORT FrameTicks
{
public:
    FrameTicks() = default;

    /// The frames of an animation as they are now; null for none.
    explicit FrameTicks(const AnimationCode* animation);

    /// `loopFrame` is the frame that is marked as where the animation starts again, -1 for none.
    FrameTicks(const QVector<int>& delays, int loopFrame);

    int frameCount() const { return m_delays.size(); }

    /// The frame that is shown at a tick; past the end the last one that is shown, and if none is
    /// shown at all the last one. -1 without frames.
    int frameAt(unsigned tick) const;

    /// The tick at which a frame begins, or would if it were shown. What stands behind an endless
    /// frame begins with that. 0 outside of the list.
    int firstTick(int frame) const;

    /// The ticks of all frames up to and with this one; -1 if one of them never ends. 0 outside of
    /// the list.
    int endTick(int frame) const;

    /// 0 outside of the list.
    int delay(int frame) const { return m_delays.value(frame); }

    /// The ticks of one pass; -1 if it never ends.
    int total() const { return m_total; }

    /// The tick that follows the last one of a pass: that of the loop frame; 0 without one, or if
    /// nothing is shown from there on.
    int loopTick() const;

    /// True if a frame is shown from the loop frame on, the first one without a mark.
    bool canLoop() const;

    /// -1 if none is marked.
    int loopFrame() const { return m_loopFrame; }

    /// True if a frame begins at that tick and is shown, which is then filled in.
    bool markerAt(unsigned tick, TimeLine::Marker& marker) const;

private:
    QVector<int> m_delays;
    QVector<int> m_starts;  // of all frames
    QVector<int> m_shown;   // frames that are shown, up to the first endless one
    int m_total = 0;
    int m_loopFrame = -1;
    QVector<int> m_marked;  // as a loop point, which a text can have several of
};

}  // namespace Zorv
