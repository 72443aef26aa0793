#pragma once

#include <QImage>

namespace Zorv {

/// Scale2x (`factor` 2) or Scale3x (3) of a working image. Pixels that look the same count as
/// equal. Null if the result is too large or memory is short.
QImage scaleEpxOnce(const QImage& image, int factor);

}  // namespace Zorv
