#include "animation/timeline/timeline.h"

namespace Zorv {

TimeLine::~TimeLine() = default;

}  // namespace Zorv
