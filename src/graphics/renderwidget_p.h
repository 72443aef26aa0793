#pragma once

#include "graphics/sightpass_p.h"
#include "graphics/texturedrawing_p.h"

namespace Zorv {

struct RenderWidgetPrivate
{
    Renderer* renderer = nullptr;
    Qt::MouseButtons pressed;            // that the renderer has heard of
    QPoint pointer;                      // where it was then, or later
    Qt::MouseButton pen = Qt::NoButton;  // that the pen of a tablet is down with
    TextureDrawing drawing;
    ColorSight sight;
    SightPass sightPass;
};

}  // namespace Zorv
