#pragma once

#include "image/canvas/imagecanvas.h"

#include <vector>

namespace Zorv {

/// The visible layers of an indexed canvas, the top one first, as one image of a part of it. All
/// are indexed; they may have any size. See `ImageCanvas::mergeLayers()`.
QImage mergeIndexed(const std::vector<QImage>& layers, const QRect& part,
                    const ImagePalette& palette);

/// The same in true colour, drawn with modes and opacities.
QImage mergeColors(const std::vector<const ImageLayer*>& layers, const QRect& part);

}  // namespace Zorv
