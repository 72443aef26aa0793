#pragma once

#include "family/stage/pictureraster.h"
#include "picture/camera.h"
#include "picture/pictures.h"

namespace Family {
struct FrameData;
struct FramePose;
}  // namespace Family

namespace Player {

/// How to draw a frame, in addition to its own line.
struct Showing
{
    double scaleX = 1;
    double scaleY = 1;
    int facing = 1;  ///< -1 for left: everything is mirrored at the axis
    Family::Mixture mixture = Family::Mixture::Over;
};

/// Draws frames on a canvas of `Format_ARGB32`, like the stage of the editor.
class Brush
{
public:
    /// Both must outlive the brush.
    Brush(QImage* canvas, const Camera& camera) : m_canvas(canvas), m_camera(camera) {}

    const Camera& camera() const { return m_camera; }
    QRect canvas() const { return m_canvas->rect(); }

    /// Draws with the axis at a point of the canvas. Draws nothing without an image.
    void draw(const Family::FrameData& frame, const Picture& picture, QPointF place,
              const Showing& showing = {});

    /// The area that it would cover with its axis at the canvas origin.
    QRect bounds(const Family::FrameData& frame, const Picture& picture) const;

    /// Fills a rectangle of the canvas.
    void fill(const QRect& rect, QRgb color);

private:
    QImage* m_canvas;
    const Camera& m_camera;
};

}  // namespace Player
