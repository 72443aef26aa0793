#pragma once

#include "media/tools/gifcomposite_p.h"
#include "media/tools/gifimage.h"

namespace Zorv {

/// What a frame writes, and how it leaves the canvas for the next one.
struct GIFStep
{
    GIFImage::Disposal disposal = GIFImage::Keep;
    QRect rect;         ///< that the frame writes
    GIFComposite base;  ///< what the canvas holds when the next one is drawn
    QRect nextRect;     ///< that the next one has to write at least
};

/// The rectangle that leads from `base` to `shown`; one pixel if there is no difference.
QRect gifRect(const GIFChange& change, const GIFComposite& shown);

/// The step of the least cost that lets `next` be drawn. `base` is what the canvas holds in front
/// of the frame that shows `shown` by writing `rect`.
GIFStep chooseStep(const GIFComposite& base, const QRect& rect, const GIFComposite& shown,
                   const GIFComposite& next);

}  // namespace Zorv
