#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QImage>

namespace Zorv {

/// Rotates an image clockwise about its centre by an angle in degrees. The result is large enough
/// for the corners.
///
/// Quarter turns are exact. `fill` is the content of the corners: an index for an indexed image,
/// otherwise a `QRgb`; if that is not opaque, `Format_RGB32` becomes `Format_ARGB32`. In all other
/// respects formats and colours are as in `resizeImage()`. `Epx` and `Hq` enlarge first, then
/// rotate. Null for a null image, an angle that is not a number, a side above 32767, and if memory
/// is short. Re-entrant.
ZORV_EXPORT QImage rotateImage(const QImage& image, float degrees, unsigned int fill,
                               ImageResizeFilter filter);

}  // namespace Zorv
