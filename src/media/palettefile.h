#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

class QByteArray;
class QString;

namespace Zorv {

/// Reads a palette file, with the format from its suffix and content, or the palette of an image;
/// see `PaletteObject::fromFile()`. On failure returns false with a user-readable `error` and
/// leaves `colors` unchanged. Main thread only.
ZORV_EXPORT bool loadPaletteFile(const QString& fileName, RGBA (&colors)[256], QString* error);

/// The content of a palette file in a writable format: "ACT" or that of an `Extension`. `fileName`
/// is the name used in the message. Empty, with `error`, for any other format.
ZORV_EXPORT QByteArray paletteFileContent(const RGBA (&colors)[256], const QByteArray& format,
                                          const QString& fileName, QString* error);

/// Writes a palette file in the format of its suffix. On failure returns false with a user-readable
/// `error` and leaves the file unchanged. Main thread only.
ZORV_EXPORT bool savePaletteFile(const QString& fileName, const RGBA (&colors)[256],
                                 QString* error);

}  // namespace Zorv
