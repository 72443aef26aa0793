#include "picture/framecycle.h"

#include "rules/fighterdata.h"

namespace Player {

using Rules::Animation;
using Rules::Frame;

namespace {

/// The frame `ticks` ticks after the start of `frame`, in the same pass. Beyond the end of the pass
/// it is the last frame, and `ticks` keeps the rest.
int frameBehind(const Animation& animation, int frame, int* ticks)
{
    for (;;) {
        const Frame& each = animation.frames.at(frame);
        const int delay = qMax(each.data.delay, 0);
        if (*ticks < delay || each.isLastShown) {
            *ticks -= *ticks < delay ? *ticks : delay;
            return frame;
        }
        *ticks -= delay;
        frame = each.next;
    }
}

/// The ticks from the start of a frame to the end of the pass.
int ticksFrom(const Animation& animation, int frame)
{
    int ticks = 0;
    for (;;) {
        const Frame& each = animation.frames.at(frame);
        ticks += qMax(each.data.delay, 0);
        if (each.isLastShown) {
            return ticks;
        }
        frame = each.next;
    }
}

}  // namespace

const Frame* frameAt(const Animation& animation, int tick)
{
    if (animation.frames.isEmpty()) {
        return nullptr;
    }
    int frame = animation.first;
    if (tick >= animation.ticks) {
        int end = tick;
        const int last = frameBehind(animation, frame, &end);
        frame = animation.frames.at(last).next;
        const int ticks = ticksFrom(animation, frame);
        tick = animation.frames.at(last).data.delay > 0 && ticks > 0
                   ? (tick - animation.ticks) % ticks
                   : 0;
    }
    return &animation.frames.at(frameBehind(animation, frame, &tick));
}

bool isInFirstPass(const Animation& animation, int tick)
{
    return tick < animation.ticks;
}

}  // namespace Player
