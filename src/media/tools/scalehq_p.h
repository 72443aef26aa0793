#pragma once

#include <QImage>

namespace Zorv {

/// hq2x, hq3x or hq4x of a comparable image of `Format_RGB32` or `Format_ARGB32`. Null if the
/// result is too large or memory is short.
QImage scaleHqOnce(const QImage& image, int factor);

}  // namespace Zorv
