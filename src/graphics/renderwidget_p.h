#pragma once

#include "graphics/texturedrawing_p.h"

namespace Zorv {

struct RenderWidgetPrivate
{
    Renderer* renderer = nullptr;
    TextureDrawing drawing;
};

}  // namespace Zorv
