#pragma once

#include "zorv_export.h"

#include <QImage>

class QIODevice;

namespace Zorv {

/// What the header of an image file tells.
struct ImageInfo
{
    quint16 width = 0;
    quint16 height = 0;
    QImage::Format format = QImage::Format_Indexed8;
};

/// Reads the header of an image file, and no pixel.
///
/// `format` is "PNG", "BMP", "PCX" or "GIF". A device that is not readable, another
/// format or a wrong signature give 0 by 0. `Format_Invalid` means that the bits a pixel are
/// none of those that the library has a form for; `loadImage()` may read the file all the same.
ZORV_EXPORT ImageInfo imageInfoFromFile(QIODevice* device, const char* format);

/// Reads an image file: the one gateway for all formats.
///
/// `format` is "PNG", "BMP", "PCX", "GIF" (its first frame), in capitals, or the name of an
/// `Extension` that loads images; `fileExtension()` makes it of a file name. The device is
/// open; false otherwise. False leaves a null image or one that is cut short; no picture
/// is read that declares more than the bytes of the file can honestly hold. See `losslessImages()`
/// for what happens to true-colour images. Re-entrant, as long as no extension is added meanwhile.
ZORV_EXPORT bool loadImage(QIODevice* device, const char* format, QImage& image);

/// Writes an image file; formats as above. False for a null image, a device that is not
/// writable, a format that nobody writes, or a failure.
ZORV_EXPORT bool saveImage(QIODevice* device, const char* format, const QImage& image);

}  // namespace Zorv
