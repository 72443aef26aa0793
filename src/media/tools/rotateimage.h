#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QImage>

namespace Zorv {

/// An image turned clockwise by an angle in degrees, as large as its corners need.
///
/// Quarter turns are exact. `fill` is what stands in the corners: an index of an indexed image,
/// else a `QRgb`. An indexed image stays indexed and takes only colours that are there. `Epx` and
/// `Hq` enlarge first and turn then. Re-entrant.
ZORV_EXPORT QImage rotateImage(const QImage& image, float degrees, unsigned int fill,
                               ImageResizeFilter filter);

}  // namespace Zorv
