#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Zorv {

/// What a format has no place for in an image.
enum class ImageLoss {
    None,
    Transparent,     ///< all transparency: BMP, and PCX of indexed images
    HalfTransparent  ///< what is half transparent: GIF
};

/// Reads an image file, of the format of its suffix, as `loadImage()` does. An indexed image
/// without colours gets shades of grey. Null, with `error` for the person, if it cannot be read.
/// Re-entrant, as that is.
ZORV_EXPORT QImage readImageFile(const QString& fileName, QString* error);

/// The bytes of an image file, as `saveImage()` writes them. GIF takes one transparent index for
/// several. Empty for a format that nobody writes, or that has no place for the image. Re-entrant.
ZORV_EXPORT QByteArray imageFileBytes(const QImage& image, const QByteArray& format);

/// What an image loses in a format: nothing, if it has no such pixel. Re-entrant.
ZORV_EXPORT ImageLoss imageLoss(const QImage& image, const QByteArray& format);

}  // namespace Zorv
