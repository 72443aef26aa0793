#pragma once

#include "media/tools/gifanimation_p.h"

namespace Zorv {

/// The pixels of a frame as `GIFPacker` takes them, with their table.
struct GIFPicture
{
    QVector<quint16> pixels;
    QVector<RGB> colors;  ///< local table; empty for the global one
    int transparent = -1;
    int bits = 8;  ///< of an index
};

/// What has to be written in a rectangle to lead from `base` to `shown`: with the global table if
/// it has the colours.
GIFPicture makePicture(const GIFComposite& base, const GIFComposite& shown, const QRect& rect,
                       const GIFTable& global, const GIFAnimation& animation);

}  // namespace Zorv
