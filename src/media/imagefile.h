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
/// `format` is "PNG", "BMP", "PCX", "GIF" (its first frame, which need not be followed by whole
/// ones), in capitals, or the name of an `Extension` that loads images; `fileExtension()` makes it
/// of a file name. The device is open; false otherwise. The result is whether there is an image
/// then, be it one that was there before; start with a null one. A PNG or BMP that is cut short, or
/// whose chunks have wrong checksums, is refused; see `losslessImages()` for PCX and for what
/// happens to true-colour images. No picture is read that declares more than the bytes of the file
/// can honestly hold. Re-entrant, as long as no extension is added meanwhile.
ZORV_EXPORT bool loadImage(QIODevice* device, const char* format, QImage& image);

/// Writes an image file; formats as above. As GIF, a true-colour image of more than 256 colours
/// is quantized, and alpha below 128 is transparent. False for a null image, a device that is not
/// writable, a format that nobody writes, or a failure.
ZORV_EXPORT bool saveImage(QIODevice* device, const char* format, const QImage& image);

}  // namespace Zorv
