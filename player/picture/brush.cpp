#include "picture/brush.h"

#include "family/nodes/framedata.h"
#include "family/stage/framepose.h"
#include "family/stage/placedpicture.h"

#include <cmath>

namespace Player {

using Family::FrameData;
using Family::PictureRaster;
using Family::PlacedPicture;

namespace {

Family::FramePose poseOf(FrameData frame, const Picture& picture, const Showing& showing)
{
    if (showing.facing < 0) {
        frame.offset.rx() = -frame.offset.x();
        frame.flip ^= 1;
        frame.angle = -frame.angle;
    }
    frame.offset =
        QPointF(frame.offset.x() * showing.scaleX, frame.offset.y() * showing.scaleY).toPoint();
    frame.scaleX *= showing.scaleX;
    frame.scaleY *= showing.scaleY;
    return Family::poseOf(frame, picture.image.size(), picture.axis);
}

}  // namespace

void Brush::draw(const FrameData& frame, const Picture& picture, QPointF place,
                 const Showing& showing)
{
    if (picture.image.isNull()) {
        return;
    }
    const PlacedPicture placed(poseOf(frame, picture, showing), m_camera.zoom);
    const QRectF seen = QRectF(m_canvas->rect()).adjusted(-1, -1, 1, 1);
    if (!QRectF(placed.bounds()).translated(place).intersects(seen)) {
        // Places far away could exceed the range of an int.
        return;
    }
    PictureRaster(m_canvas, -place.toPoint()).draw(placed, picture.image, showing.mixture);
}

QRect Brush::bounds(const FrameData& frame, const Picture& picture) const
{
    return PlacedPicture(poseOf(frame, picture, {}), m_camera.zoom).bounds();
}

void Brush::fill(const QRect& rect, QRgb color)
{
    PictureRaster(m_canvas, {}).fill(rect, color);
}

}  // namespace Player
