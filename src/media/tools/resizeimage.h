#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QImage>
#include <QSize>

namespace Zorv {

/// Resizes an image; each side from 1 to 32767. Null for any other size, for a null image, and if
/// memory is short.
///
/// An indexed image stays indexed and keeps its colour table. Mixed colours become the nearest
/// entry; mostly transparent ones become the first transparent entry. With `Nearest` and `Epx`,
/// equal indices stay equal. Without a colour table nothing is mixed. Any other image becomes
/// `Format_RGB32` if it has no alpha, otherwise `Format_ARGB32`, and is mixed with alpha taken into
/// account; a 1-bit image becomes indexed. When shrinking, `Bilinear` uses all covered pixels.
/// Re-entrant.
ZORV_EXPORT QImage resizeImage(const QImage& image, const QSize& size, ImageResizeFilter filter);

/// Scale2x, Scale3x and Scale4x (Scale2x twice); `factor` is 2, 3 or 4. Null for any other factor,
/// and in the cases in which `resizeImage()` returns null.
ZORV_EXPORT QImage scaleEpx(const QImage& image, int factor);

/// hq2x, hq3x and hq4x; `factor` is 2, 3 or 4. Null for any other factor, and in the cases in which
/// `resizeImage()` returns null. An indexed image keeps its colour table as described there.
ZORV_EXPORT QImage scaleHq(const QImage& image, int factor);

}  // namespace Zorv
