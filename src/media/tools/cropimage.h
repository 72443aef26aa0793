#pragma once

#include "zorv_export.h"

#include <QImage>
#include <QRect>

namespace Zorv {

/// The smallest rectangle around the pixels that show; empty if there are none.
///
/// In an indexed image a pixel does not show if it is of the index `background`, or if its
/// entry of the colour table is transparent; in any other if its alpha is 0. A form without alpha
/// gives the whole image. A negative `background` is no index.
ZORV_EXPORT QRect cropImageRect(const QImage& image, int background = 0);

/// Cuts an image to that rectangle. `offset`, if given, takes its corner. An image in
/// which nothing shows becomes one of 1 by 1. The colour table is kept.
ZORV_EXPORT void cropImage(QImage& image, QPoint* offset = nullptr, int background = 0);

}  // namespace Zorv
