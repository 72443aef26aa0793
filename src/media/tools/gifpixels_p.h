#pragma once

#include <QImage>

#include <array>

namespace Zorv {

/// For each index, whether the image uses it.
using GIFIndexSet = std::array<bool, 256>;

/// A colour as GIF can show it: opaque, or 0.
QRgb gifColor(QRgb color);

/// The image reduced to such colours, as `Format_ARGB32`.
QImage gifTrueColor(const QImage& image);

/// The same as `Format_Indexed8`; null if there are more than 256 colours. An indexed image is
/// returned unchanged.
QImage gifIndexed(const QImage& image);

GIFIndexSet gifIndices(const QImage& indexed);

}  // namespace Zorv
