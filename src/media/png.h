#pragma once

#include "zorv_export.h"

class QImage;
class QIODevice;

namespace Zorv {

/// Reads a PNG file with Qt. False only if the device cannot be opened: a file that is not a PNG
/// gives a null image.
ZORV_EXPORT bool loadPNG(QImage& image, QIODevice* device);

/// Writes a PNG file with Qt. A readable device counts as open, so one that is open only for
/// reading gives false.
ZORV_EXPORT bool savePNG(const QImage& image, QIODevice* device);

}  // namespace Zorv
