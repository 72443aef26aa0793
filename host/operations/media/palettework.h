#pragma once

#include "operations/media/imageedits.h"

#include <zorv/media/colortypes.h>

namespace Operations {

/// Reads a palette file, of the format of its suffix and content, or the palette of an indexed
/// image. Colour 0 is transparent. False, with `error` for the person, if it cannot be read. Main
/// thread only.
bool readPalette(const QString& fileName, Zorv::RGBA (&colors)[256], QString* error);

/// Reads palettes and writes each as an ACT file, or in another format that palettes are written
/// in; see `OutputFiles` for where to. Main thread only.
MediaResult convertPalettes(const QStringList& files, const OutputRequest& request);

/// Makes a palette file; `name` is what messages call it. Main thread only.
QByteArray paletteFile(const Zorv::RGBA (&colors)[256], const QByteArray& format,
                       const QString& name, QString* error);

}  // namespace Operations
