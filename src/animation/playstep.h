#pragma once

#include "animation/timeline/tickrange.h"
#include "zorv_export.h"

#include <optional>

namespace Zorv {

class FrameTicks;

/// How an animation is played.
struct PlayOptions
{
    /// Loops these ticks only, clipped to the length of the animation.
    std::optional<TickRange> range;

    /// Starts again from the beginning after an end, once the last frame was visible for a while.
    bool isRepeated = false;
};

/// What to do at a tick of the clock.
struct PlayStep
{
    enum Act {
        Show,         ///< the frame at the tick
        ShowAndStop,  ///< the frame at the tick, which is the last one
        Stop,         ///< keep what is shown
        Jump          ///< to another tick
    };
    Act act = Show;
    unsigned int target = 0;  ///< for `Jump`
};

/// The tick at which playback begins: `wanted`, or the start of a looped range that does not
/// contain it.
ZORV_EXPORT unsigned int playStart(const FrameTicks& ticks, const PlayOptions& options,
                                   unsigned int wanted);

/// After the last tick, playback continues at the loop point. It ends if nothing is shown from
/// there on, and at an endless frame. A looped range never ends.
ZORV_EXPORT PlayStep playStep(const FrameTicks& ticks, const PlayOptions& options,
                              unsigned int tick);

}  // namespace Zorv
