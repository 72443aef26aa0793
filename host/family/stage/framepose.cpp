#include "family/stage/framepose.h"

#include "family/nodes/framedata.h"

namespace Family {

bool FramePose::operator==(const FramePose& other) const
{
    return axis == other.axis && position == other.position && size == other.size &&
           scale == other.scale && flip == other.flip && rotation == other.rotation;
}

FramePose poseOf(const FrameData& frame, QSize size, QPoint hotSpot)
{
    FramePose pose;
    pose.axis = frame.offset;
    pose.size = size;
    pose.scale = QPointF(frame.scaleX, frame.scaleY);
    pose.flip = frame.flip;
    pose.rotation = float(-frame.angle);
    pose.position = QPoint((frame.flip & 1) != 0 ? hotSpot.x() - size.width() : -hotSpot.x(),
                           (frame.flip & 2) != 0 ? hotSpot.y() - size.height() : -hotSpot.y());
    return pose;
}

}  // namespace Family
