#pragma once

#include "animation/timeline/timeline.h"
#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class AnimationCode;

/// Maps ticks to the frames of an animation and back.
///
/// Frames follow one another from tick 0, each for its delay. A frame with delay 0 is never shown;
/// one with a negative delay never ends. Ticks are capped at the largest `int`. A plain value that
/// holds no node. Finding a frame takes logarithmic time.
class ZORV_EXPORT FrameTicks
{
public:
    FrameTicks() = default;

    /// Reads the frames of an animation as they are now; no frames for null.
    explicit FrameTicks(const AnimationCode* animation);

    /// `loopFrame` is the frame marked as the loop point, -1 for none.
    FrameTicks(const QVector<int>& delays, int loopFrame);

    int frameCount() const { return m_delays.size(); }

    /// The frame shown at a tick. Past the end the last frame that is shown, or simply the last one
    /// if none is ever shown. -1 without frames.
    int frameAt(unsigned tick) const;

    /// The tick at which a frame begins, or would begin if it were shown. Frames after an endless
    /// one get its start. 0 if out of range.
    int firstTick(int frame) const;

    /// The total ticks of all frames up to and including this one; -1 if one of them never ends. 0
    /// if out of range.
    int endTick(int frame) const;

    /// 0 if out of range.
    int delay(int frame) const { return m_delays.value(frame); }

    /// The ticks of one pass; -1 if it never ends.
    int total() const { return m_total; }

    /// The tick that follows the last one of a pass: the start of the loop frame. 0 without a loop
    /// frame, or if nothing is shown from there on.
    int loopTick() const;

    /// True if a frame is shown from the loop frame on, or from the first frame if none is marked.
    bool canLoop() const;

    /// -1 if none is marked.
    int loopFrame() const { return m_loopFrame; }

    /// If a shown frame begins at that tick, fills in `marker` and returns true.
    bool markerAt(unsigned tick, TimeLine::Marker& marker) const;

private:
    QVector<int> m_delays;
    QVector<int> m_starts;  // of all frames
    QVector<int> m_shown;   // frames that are shown, up to the first endless one
    int m_total = 0;
    int m_loopFrame = -1;
    QVector<int> m_marked;  // frames marked as a loop point; a text can have several
};

}  // namespace Zorv
