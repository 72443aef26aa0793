#pragma once

#include <QImage>

namespace Zorv {

/// Scale2x (`factor` 2) or Scale3x (3) of a comparable image of any working form. Null if the
/// result is too large or memory is short.
QImage scaleEpxOnce(const QImage& image, int factor);

}  // namespace Zorv
