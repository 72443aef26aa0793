#pragma once

#include <QImage>

class QIODevice;

namespace Zorv {

/// A PNG or BMP file as it is, whatever `losslessImages()` says; null if it is not whole. The
/// device is open and not sequential. No more memory is taken than the bytes of the file can
/// honestly hold.
QImage readPlainPNG(QIODevice* device);
QImage readPlainBMP(QIODevice* device);

/// The same pixels as `Format_Indexed8`, `Format_RGB32` or `Format_ARGB32`.
QImage inLibraryForm(const QImage& image);

}  // namespace Zorv
