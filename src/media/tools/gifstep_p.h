#pragma once

#include "media/tools/gifcomposite_p.h"
#include "media/tools/gifimage.h"

namespace Zorv {

/// The rectangle a frame writes, and its disposal.
struct GIFStep
{
    GIFImage::Disposal disposal = GIFImage::Keep;
    QRect rect;         ///< written by the frame
    GIFComposite base;  ///< the canvas before the next frame is drawn
    QRect nextRect;     ///< the least that the next frame must write
};

/// The rectangle to write for a change; a single pixel if there is none.
QRect gifRect(const GIFChange& change, const GIFComposite& shown);

/// The cheapest step after which `next` can be drawn. `base` is the canvas before the frame that
/// shows `shown` by writing `rect`.
GIFStep chooseStep(const GIFComposite& base, const QRect& rect, const GIFComposite& shown,
                   const GIFComposite& next);

}  // namespace Zorv
