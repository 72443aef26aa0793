#pragma once

#include <QImage>

class QIODevice;

namespace Zorv {

/// Read a PNG or BMP file unchanged, regardless of `losslessImages()`; null if it is not complete.
/// The device must be open and not sequential. No more memory is allocated than the bytes of the
/// file can justify.
QImage readPlainPNG(QIODevice* device);
QImage readPlainBMP(QIODevice* device);

/// Converts to `Format_Indexed8`, `Format_RGB32` or `Format_ARGB32`.
QImage inLibraryForm(const QImage& image);

}  // namespace Zorv
