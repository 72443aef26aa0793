#pragma once

#include "zorv_export.h"

#include <QImage>
#include <QRect>

namespace Zorv {

/// The smallest rectangle around all visible pixels; empty if there are none.
///
/// In an indexed image a pixel is invisible if its index is `background` or its colour is
/// transparent; in any other image, if its alpha is 0. A format without alpha gives the whole
/// image. A negative `background` matches no index.
ZORV_EXPORT QRect cropImageRect(const QImage& image, int background = 0);

/// Crops an image to that rectangle. `offset`, if given, receives its top left corner. An image
/// without visible pixels becomes 1 by 1. The colour table is kept.
ZORV_EXPORT void cropImage(QImage& image, QPoint* offset = nullptr, int background = 0);

}  // namespace Zorv
