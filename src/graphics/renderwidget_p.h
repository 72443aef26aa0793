#pragma once

#include "graphics/sightpass_p.h"
#include "graphics/texturedrawing_p.h"

namespace Zorv {

struct RenderWidgetPrivate
{
    Renderer* renderer = nullptr;
    Qt::MouseButtons pressed;            // buttons reported to the renderer
    QPoint pointer;                      // position of that press, or later
    Qt::MouseButton pen = Qt::NoButton;  // button of the tablet pen that is down
    TextureDrawing drawing;
    ColorSight sight;
    SightPass sightPass;
};

}  // namespace Zorv
