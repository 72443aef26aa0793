#pragma once

#include <QImage>

namespace Zorv {

/// An image of `Format_RGB32` or `Format_ARGB32` in another size, which is valid. Each pixel is a
/// mixture of the pixels around its centre, weighted by their distance and their alpha: of four
/// when the image grows, of all that are covered when it shrinks. Null if memory is short.
QImage resizeBilinear(const QImage& image, const QSize& size);

}  // namespace Zorv
