#pragma once

#include "zorv_export.h"

class QImage;
class QIODevice;

namespace Zorv {

/// Reads a PNG file as Qt does. False only if the device cannot be opened: a file that
/// is no PNG leaves a null image.
ZORV_EXPORT bool loadPNG(QImage& image, QIODevice* device);

/// Writes a PNG file as Qt does. A device that is readable counts as open: one that is
/// open for reading alone gives false.
ZORV_EXPORT bool savePNG(const QImage& image, QIODevice* device);

}  // namespace Zorv
