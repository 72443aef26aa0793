#pragma once

#include "family/stage/pictureraster.h"
#include "picture/camera.h"
#include "picture/pictures.h"

namespace Family {
struct FrameData;
struct FramePose;
}  // namespace Family

namespace Player {

/// How a frame is shown besides what its line says.
struct Showing
{
    double scaleX = 1;
    double scaleY = 1;
    int facing = 1;  ///< -1 to the left: all of it is mirrored about the axis
    Family::Mixture mixture = Family::Mixture::Over;
};

/// Draws frames on a canvas of `Format_ARGB32`, as the editor's stage shows them.
class Brush
{
public:
    /// Both outlive the brush.
    Brush(QImage* canvas, const Camera& camera) : m_canvas(canvas), m_camera(camera) {}

    const Camera& camera() const { return m_camera; }
    QRect canvas() const { return m_canvas->rect(); }

    /// With the axis at a place of the canvas. Nothing without an image.
    void draw(const Family::FrameData& frame, const Picture& picture, QPointF place,
              const Showing& showing = {});

    /// What that covers when the place is that of the canvas's corner.
    QRect bounds(const Family::FrameData& frame, const Picture& picture) const;

    /// A rectangle of the canvas.
    void fill(const QRect& rect, QRgb color);

private:
    QImage* m_canvas;
    const Camera& m_camera;
};

}  // namespace Player
