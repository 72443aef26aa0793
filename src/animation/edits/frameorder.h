#pragma once

#include "animation/edits/frameplace.h"
#include "cache/spritenumber.h"

namespace Zorv {

/// Edits of the order of frames, one undo step each.
///
/// The lines above a frame, with its contact boxes and comments, move along with it. Frames are
/// given as indexes in one animation, in any order; invalid and repeated ones are ignored. The
/// functions return the new index of the first of these frames; -1, without an edit, if there was
/// nothing to do.

/// Moves frames together to before the frame that is at index `to` now; the frame count as `to`
/// means the end. They keep their order.
ZORV_EXPORT int moveFrames(Animations* animations, int animation, const QVector<int>& frames,
                           int to);

/// Reverses the order of these frames. They swap places among themselves; others stay.
ZORV_EXPORT int reverseFrames(Animations* animations, int animation, const QVector<int>& frames);

/// Removes frames. Returns the index of the frame that is now in their place, or of the last one;
/// -1 if none is left.
ZORV_EXPORT int removeFrames(Animations* animations, int animation, const QVector<int>& frames);

/// Inserts new frames before the frame `to`, one per sprite. They follow the grammar's template for
/// a frame after the preceding one.
ZORV_EXPORT int insertFrames(Animations* animations, int animation, int to,
                             const QVector<SpriteNumber>& sprites);

}  // namespace Zorv
