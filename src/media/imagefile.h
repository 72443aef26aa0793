#pragma once

#include "zorv_export.h"

#include <QImage>

class QIODevice;

namespace Zorv {

/// The information in the header of an image file.
struct ImageInfo
{
    quint16 width = 0;
    quint16 height = 0;
    QImage::Format format = QImage::Format_Indexed8;
};

/// Reads only the header of an image file, no pixels.
///
/// `format` is "PNG", "BMP", "PCX" or "GIF". An unreadable device, another format or a wrong
/// signature gives 0 by 0. `Format_Invalid` means that the library has no image format for these
/// bits per pixel; `loadImage()` may still read the file.
ZORV_EXPORT ImageInfo imageInfoFromFile(QIODevice* device, const char* format);

/// Reads an image file. All formats go through this function.
///
/// `format` is "PNG", "BMP", "PCX" or "GIF" in capitals, or the name of an `Extension` that loads
/// images; `fileExtension()` derives it from a file name. Of a GIF, only the first frame is read,
/// and later ones may be broken. The device must be open, otherwise the result is false.
///
/// Returns whether `image` is non-null afterwards, so start with a null one. A PNG or BMP that is
/// truncated, or whose chunks have wrong checksums, is refused; see `losslessImages()` for PCX and
/// for true-colour images. A picture whose declared size exceeds what the bytes of the file can
/// hold is not read. Re-entrant, provided that no extension is added meanwhile.
ZORV_EXPORT bool loadImage(QIODevice* device, const char* format, QImage& image);

/// Writes an image file; formats as above. As GIF, a true-colour image of more than 256 colours is
/// quantized, and alpha below 128 becomes transparent. False for a null image, an unwritable
/// device, a format without a writer, or a write error.
ZORV_EXPORT bool saveImage(QIODevice* device, const char* format, const QImage& image);

}  // namespace Zorv
