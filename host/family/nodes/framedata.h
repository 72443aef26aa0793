#pragma once

#include <zorv/code/codedoc/framecode.h>

namespace Family {

/// The content of a frame line.
struct FrameData
{
    int group = 0;
    int number = 0;
    QPoint offset;
    int delay = 1;  ///< ticks; -1: endless
    double scaleX = 1;
    double scaleY = 1;
    double angle = 0;  ///< degrees, counterclockwise
    unsigned char flip = 0;
    bool loop = false;

    bool operator==(const FrameData& other) const;
    bool operator!=(const FrameData& other) const { return !(*this == other); }
};

}  // namespace Family
