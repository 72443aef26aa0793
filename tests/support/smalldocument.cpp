#include "support/smalldocument.h"

#include "animation/frameticks.h"

int SmallAnimation::duration() const
{
    return Zorv::FrameTicks(this).total();
}

int SmallAnimation::loopFrame() const
{
    for (int i = 0; i < frameCount(); ++i) {
        if (frame(i)->isLoopPoint()) {
            return i;
        }
    }
    return -1;
}
