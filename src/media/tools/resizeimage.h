#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QImage>
#include <QSize>

namespace Zorv {

/// An image of another size, 1 to 32767 each way; null for any other, for a null image and if
/// memory is short.
///
/// An indexed image stays indexed, with its colour table: mixed colours become the nearest of those
/// that are there, what is more transparent than not becomes the first transparent entry, and
/// equal indices stay equal under `Nearest` and `Epx`. Without a colour table nothing is mixed.
/// Any other image comes out as `Format_RGB32` if it has no alpha and else as `Format_ARGB32`,
/// mixed with alpha taken into account; one of 1 bit becomes indexed. `Bilinear` takes all pixels
/// that are covered when the image shrinks. Re-entrant.
ZORV_EXPORT QImage resizeImage(const QImage& image, const QSize& size, ImageResizeFilter filter);

/// Scale2x, Scale3x and Scale4x (Scale2x twice): `factor` is 2, 3 or 4. Null for any other, and
/// where `resizeImage()` gives none.
ZORV_EXPORT QImage scaleEpx(const QImage& image, int factor);

/// hq2x, hq3x and hq4x: `factor` is 2, 3 or 4. Null for any other, and where `resizeImage()` gives
/// none. An indexed image keeps to its colour table as there.
ZORV_EXPORT QImage scaleHq(const QImage& image, int factor);

}  // namespace Zorv
