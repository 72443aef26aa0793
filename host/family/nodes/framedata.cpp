#include "family/nodes/framedata.h"

namespace Family {

bool FrameData::operator==(const FrameData& other) const
{
    return group == other.group && number == other.number && offset == other.offset &&
           delay == other.delay && scaleX == other.scaleX && scaleY == other.scaleY &&
           angle == other.angle && flip == other.flip && loop == other.loop;
}

}  // namespace Family
