#pragma once

#include "graphics/renderer.h"

namespace Zorv {

/// A renderer with a zoom and an origin that can be centred.
class ZORV_EXPORT GraphicsRendererBase : public Renderer
{
public:
    /// Zooms in by one level; does nothing at the highest level.
    virtual void addZoom() = 0;

    /// Zooms out by one level; does nothing at the lowest level.
    virtual void subZoom() = 0;

    /// Zooms to actual size: one pixel of the game is one pixel of the widget.
    virtual void zoomActual() = 0;

    /// Moves the origin to the middle of the widget.
    virtual void centralize() = 0;
};

}  // namespace Zorv
