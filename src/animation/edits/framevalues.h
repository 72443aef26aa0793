#pragma once

#include "animation/edits/editcount.h"
#include "animation/edits/frameplace.h"

namespace Zorv {

/// A property of a frame that can be copied to other frames.
enum class FrameValue { Offset, Time, Flip, Scale };

/// Copies a value of a frame to all later frames of its animation, as one undo step. Does nothing
/// if there is no such frame.
ZORV_EXPORT EditCount copyToNextFrames(Animations* animations, const FramePlace& place,
                                       FrameValue value);

/// The duration of a frame.
struct FrameTime
{
    int frame;
    int ticks;  ///< negative: forever
};

/// Sets the durations of frames of an animation, as one undo step. If a frame occurs several times,
/// the last entry wins. Ignores invalid indexes.
ZORV_EXPORT EditCount setTimes(Animations* animations, int animation,
                               const QVector<FrameTime>& times);

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::FrameTime, Q_PRIMITIVE_TYPE);
