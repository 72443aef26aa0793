#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QImage>

namespace Zorv {

/// An image turned clockwise about its centre by an angle in degrees, as large as its corners need.
///
/// Quarter turns are exact. `fill` is what stands in the corners: an index of an indexed image,
/// else a `QRgb`; if that is not opaque, `Format_RGB32` becomes `Format_ARGB32`. Forms and colours
/// are else those of `resizeImage()`. `Epx` and `Hq` enlarge first and turn then. Null for a null
/// image, an angle that is no number, a side beyond 32767, and if memory is short. Re-entrant.
ZORV_EXPORT QImage rotateImage(const QImage& image, float degrees, unsigned int fill,
                               ImageResizeFilter filter);

}  // namespace Zorv
