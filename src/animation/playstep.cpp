#include "animation/playstep.h"

#include "animation/frameticks.h"

namespace Zorv {

namespace {

// How long the end of an animation stays visible before it starts again.
constexpr unsigned int SeenTicks = 30;

/// Clips the range to the animation. An endless animation has all ticks.
std::optional<TickRange> rangeOf(const FrameTicks& ticks, const PlayOptions& options)
{
    const int total = ticks.total();
    if (!options.range || total < 0) {
        return options.range;
    }
    TickRange range = *options.range;
    if (range.first >= unsigned(total)) {
        return {};
    }
    range.last = std::min(range.last, unsigned(total) - 1);
    return range;
}

/// What happens after an end that began at tick `since`: `act`, or a restart.
PlayStep endStep(const PlayOptions& options, unsigned int tick, unsigned int since,
                 PlayStep::Act act)
{
    if (!options.isRepeated || since == 0) {
        return {act};
    }
    return tick - since < SeenTicks ? PlayStep{PlayStep::Show} : PlayStep{PlayStep::Jump, 0};
}

}  // namespace

unsigned int playStart(const FrameTicks& ticks, const PlayOptions& options, unsigned int wanted)
{
    const std::optional<TickRange> range = rangeOf(ticks, options);
    const bool isInside = !range || (wanted >= range->first && wanted <= range->last);
    return isInside ? wanted : range->first;
}

PlayStep playStep(const FrameTicks& ticks, const PlayOptions& options, unsigned int tick)
{
    if (const std::optional<TickRange> range = rangeOf(ticks, options)) {
        const bool isInside = tick >= range->first && tick <= range->last;
        return isInside ? PlayStep{PlayStep::Show} : PlayStep{PlayStep::Jump, range->first};
    }
    const int total = ticks.total();
    if (total >= 0 && tick >= unsigned(total)) {
        return ticks.canLoop() ? PlayStep{PlayStep::Jump, unsigned(ticks.loopTick())}
                               : endStep(options, tick, unsigned(total), PlayStep::Stop);
    }
    const int frame = ticks.frameAt(tick);
    return ticks.delay(frame) < 0
               ? endStep(options, tick, unsigned(ticks.firstTick(frame)), PlayStep::ShowAndStop)
               : PlayStep{PlayStep::Show};
}

}  // namespace Zorv
