#pragma once

#include <QImage>

#include <array>

namespace Zorv {

/// For each index whether an image has a pixel of it.
using GIFIndexSet = std::array<bool, 256>;

/// A colour as a GIF file shows it: opaque, or 0.
QRgb gifColor(QRgb color);

/// The pixels of an image with such colours, as `Format_ARGB32`.
QImage gifTrueColor(const QImage& image);

/// The same as `Format_Indexed8`; null if there are more than 256 colours. An indexed image is
/// given back as it is.
QImage gifIndexed(const QImage& image);

GIFIndexSet gifIndices(const QImage& indexed);

}  // namespace Zorv
