#pragma once

#include "media/tools/gifanimation_p.h"

namespace Zorv {

/// The pixels of a frame in the form that `GIFPacker` takes, with their colour table.
struct GIFPicture
{
    QVector<quint16> pixels;
    QVector<RGB> colors;  ///< local table; empty for the global one
    int transparent = -1;
    int bits = 8;  ///< size of an index
};

/// The pixels to write in a rectangle to get from `base` to `shown`. Uses the global table if it
/// has the colours, otherwise a local one.
GIFPicture makePicture(const GIFComposite& base, const GIFComposite& shown, const QRect& rect,
                       const GIFTable& global, const GIFAnimation& animation);

}  // namespace Zorv
