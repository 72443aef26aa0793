#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Zorv {

/// What an image format cannot represent.
enum class ImageLoss {
    None,
    Transparent,     ///< any transparency: BMP, and PCX of indexed images
    HalfTransparent  ///< partial transparency: GIF
};

/// Reads an image file with `loadImage()`; the suffix gives the format. An indexed image without
/// colours gets shades of grey. Null with a user-readable `error` if it cannot be read. Re-entrant
/// like `loadImage()`.
ZORV_EXPORT QImage readImageFile(const QString& fileName, QString* error);

/// The bytes of an image file as `saveImage()` writes them. For GIF, several transparent indices
/// are merged into one. Empty for a format without a writer or one that cannot hold the image.
/// Re-entrant.
ZORV_EXPORT QByteArray imageFileBytes(const QImage& image, const QByteArray& format);

/// What an image loses in a format; `None` if it has no such pixel. Re-entrant.
ZORV_EXPORT ImageLoss imageLoss(const QImage& image, const QByteArray& format);

}  // namespace Zorv
