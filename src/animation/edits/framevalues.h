#pragma once

#include "animation/edits/editcount.h"
#include "animation/edits/frameplace.h"

namespace Zorv {

/// What a frame can hand on to others.
enum class FrameValue { Offset, Time, Flip, Scale };

/// Gives a value of a frame to all frames behind it in its animation, as one step of undo. Those
/// in front of it stay as they are; nothing if there is no such frame.
ZORV_EXPORT EditCount copyToNextFrames(Animations* animations, const FramePlace& place,
                                       FrameValue value);

/// How long a frame is to stand.
struct FrameTime
{
    int frame;
    int ticks;  ///< negative for ever
};

/// Gives frames of an animation their times, as one step of undo. Of several times for a frame
/// the last one counts, places outside of the animation count for nothing.
ZORV_EXPORT EditCount setTimes(Animations* animations, int animation,
                               const QVector<FrameTime>& times);

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::FrameTime, Q_PRIMITIVE_TYPE);
