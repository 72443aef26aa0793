#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

class QByteArray;
class QString;

namespace Zorv {

/// Reads a palette file, of the format of its suffix and content, or the palette of an image; see
/// `PaletteObject::fromFile()`. False, with `error` for the person and `colors` as they were, if it
/// cannot be read. Main thread only.
ZORV_EXPORT bool loadPaletteFile(const QString& fileName, RGBA (&colors)[256], QString* error);

/// The content of a palette file in a format that palettes are written in, "ACT" or that of an
/// `Extension`; `fileName` is what the message calls it. Empty, with `error`, for any other.
ZORV_EXPORT QByteArray paletteFileContent(const RGBA (&colors)[256], const QByteArray& format,
                                          const QString& fileName, QString* error);

/// Writes a palette file in the format of its suffix. False, with
/// `error` for the person and the file as it was, if it cannot be written. Main thread only.
ZORV_EXPORT bool savePaletteFile(const QString& fileName, const RGBA (&colors)[256],
                                 QString* error);

}  // namespace Zorv
