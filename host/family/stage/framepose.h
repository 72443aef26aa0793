#pragma once

#include <QPoint>
#include <QPointF>
#include <QSize>

namespace Family {

struct FrameData;

/// The pose of a picture on the stage, as `Zorv::GraphicsRenderer` draws it.
///
/// `axis` is the position of its axis in game pixels from the origin of the animation. The picture
/// covers `size` times `scale` from `position` times `scale` (relative to the axis), both truncated
/// to whole pixels. It is mirrored inside that rectangle and rotated by `rotation` about the axis.
struct FramePose
{
    QPoint axis;
    QPoint position;
    QSize size;
    QPointF scale{1, 1};
    unsigned char flip = 0;  ///< bit 0 horizontally, bit 1 vertically
    float rotation = 0;      ///< degrees, clockwise on the screen

    bool operator==(const FramePose& other) const;
    bool operator!=(const FramePose& other) const { return !(*this == other); }
};

/// The pose of a frame with a picture of this size; `hotSpot` is relative to its top left corner. A
/// mirrored picture is mirrored about the hot spot.
FramePose poseOf(const FrameData& frame, QSize size, QPoint hotSpot);

}  // namespace Family
