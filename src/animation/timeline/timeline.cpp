#include "animation/timeline/timeline.h"

namespace Zorv {

TimeLine::~TimeLine() = default;

TimeLineCells* TimeLine::cells()
{
    return nullptr;
}

}  // namespace Zorv
