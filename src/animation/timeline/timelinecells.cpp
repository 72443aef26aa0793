#include "animation/timeline/timelinecells.h"

namespace Zorv {

TimeLineCells::~TimeLineCells() = default;

bool TimeLineCells::accepts(const QMimeData*) const
{
    return false;
}

void TimeLineCells::drop(const QMimeData*, int) {}

}  // namespace Zorv
