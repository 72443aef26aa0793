#pragma once

#include "animation/edits/frameplace.h"
#include "cache/spritenumber.h"

namespace Zorv {

/// Edits of the order of frames, one step of undo each.
///
/// The lines in front of a frame, with its contact boxes and comments, go wherever it goes. Frames
/// are told by their places in one animation, in any order; those outside of it and repeated ones
/// count for nothing. What each gives is the place at which the first of its frames stands
/// afterwards; -1, and no edit, if there was nothing to do.

/// Moves frames together to where the frame `to` stands now, in front of it; behind the last one
/// for the count of frames. They keep their order.
ZORV_EXPORT int moveFrames(Animations* animations, int animation, const QVector<int>& frames,
                           int to);

/// Turns the order of frames around, each at the place of another.
ZORV_EXPORT int reverseFrames(Animations* animations, int animation, const QVector<int>& frames);

/// Takes frames out of their animation. Gives the place of the frame that stands there now, or of
/// the last one; -1 if none is left.
ZORV_EXPORT int removeFrames(Animations* animations, int animation, const QVector<int>& frames);

/// Puts new frames in front of the frame `to`, by the grammar's template for the one before it:
/// as many as there are sprites, one with each.
ZORV_EXPORT int insertFrames(Animations* animations, int animation, int to,
                             const QVector<SpriteNumber>& sprites);

}  // namespace Zorv
