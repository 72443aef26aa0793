#include "graphics/stage/graphicsrenderer_p.h"

#include <algorithm>

namespace Zorv {

void GraphicsRendererPrivate::resetSelectionRect()
{
    selectionRect.setCoords(4444, 4444, -4445, -4445);
}

void GraphicsRendererPrivate::updateBoxSelection(const QRect& rect)
{
    selectionRect.setCoords(
        std::min(selectionRect.left(), rect.left()), std::min(selectionRect.top(), rect.top()),
        std::max(selectionRect.right(), rect.right()),
        std::max(selectionRect.bottom(), rect.bottom()));
}

}  // namespace Zorv
