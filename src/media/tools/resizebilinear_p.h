#pragma once

#include <QImage>

namespace Zorv {

/// Resizes an image of `Format_RGB32` or `Format_ARGB32` to a valid size. Each result pixel is a
/// mixture of the pixels around its centre, weighted by distance and alpha: of four when enlarging,
/// of all that it covers when shrinking. Null if memory is short.
QImage resizeBilinear(const QImage& image, const QSize& size);

}  // namespace Zorv
