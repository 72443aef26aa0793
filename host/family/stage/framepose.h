#pragma once

#include <QPoint>
#include <QPointF>
#include <QSize>

namespace Family {

struct FrameData;

/// How a picture stands on the stage, as `Zorv::GraphicsRenderer` draws it.
///
/// Its axis stands at `axis`, in pixels of the game from the origin of the animation. The picture
/// reaches from `position` times `scale` (from the axis) by `size` times `scale`, both cut to whole
/// pixels, is mirrored inside of that, and is turned by `rotation` about the axis.
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

/// The pose of a frame with a picture of that size, whose hot spot is `hotSpot` from its top left
/// corner. A mirrored picture is mirrored about the hot spot.
FramePose poseOf(const FrameData& frame, QSize size, QPoint hotSpot);

}  // namespace Family
