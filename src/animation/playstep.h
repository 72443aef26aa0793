#pragma once

#include "animation/timeline/tickrange.h"
#include "zorv_export.h"

#include <optional>

namespace Zorv {

class FrameTicks;

/// How an animation is played.
struct PlayOptions
{
    /// These ticks alone, again and again, as far as the animation has them.
    std::optional<TickRange> range;

    /// One that ends begins again from the start, when its last frame has been seen for a while.
    bool isRepeated = false;
};

/// What is to be done at a tick of the clock.
struct PlayStep
{
    enum Act {
        Show,         ///< the frame at the tick
        ShowAndStop,  ///< the same, which is the last one
        Stop,         ///< nothing more, what is shown stays
        Jump          ///< to another tick
    };
    Act act = Show;
    unsigned int target = 0;  ///< of a jump
};

/// The tick at which play begins: that of `wanted`, unless only a range without it is played.
ZORV_EXPORT unsigned int playStart(const FrameTicks& ticks, const PlayOptions& options,
                                   unsigned int wanted);

/// Behind the last tick play goes on at the loop point, and where nothing is shown from there on
/// it ends, as it does at an endless frame. A range to be looped has no other end.
ZORV_EXPORT PlayStep playStep(const FrameTicks& ticks, const PlayOptions& options,
                              unsigned int tick);

}  // namespace Zorv
