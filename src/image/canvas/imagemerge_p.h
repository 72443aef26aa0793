#pragma once

#include "image/canvas/imagecanvas.h"

#include <vector>

namespace Zorv {

/// Flattens a part of the visible layers of an indexed canvas, given with the top one first. All
/// are indexed; they may have any size. See `ImageCanvas::mergeLayers()`.
QImage mergeIndexed(const std::vector<QImage>& layers, const QRect& part,
                    const ImagePalette& palette);

/// The same in true colour, drawn with blend modes and opacities.
QImage mergeColors(const std::vector<const ImageLayer*>& layers, const QRect& part);

}  // namespace Zorv
