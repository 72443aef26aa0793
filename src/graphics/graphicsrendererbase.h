#pragma once

#include "graphics/renderer.h"

namespace Zorv {

/// A renderer that can be zoomed, and whose origin can be put into the middle.
class ZORV_EXPORT GraphicsRendererBase : public Renderer
{
public:
    /// One level nearer, or nothing at the nearest.
    virtual void addZoom() = 0;

    /// One level farther, or nothing at the farthest.
    virtual void subZoom() = 0;

    /// One pixel of the game is one of the widget.
    virtual void zoomActual() = 0;

    /// Puts the origin into the middle of the widget.
    virtual void centralize() = 0;
};

}  // namespace Zorv
