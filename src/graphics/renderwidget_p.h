#pragma once

#include "graphics/texturedrawing_p.h"

namespace Zorv {

struct RenderWidgetPrivate
{
    Renderer* renderer = nullptr;
    Qt::MouseButtons pressed;  // that the renderer has heard of
    QPoint pointer;            // where it was then, or later
    TextureDrawing drawing;
};

}  // namespace Zorv
