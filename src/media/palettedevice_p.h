#pragma once

#include "media/colortypes.h"

class QByteArray;
class QIODevice;

namespace Zorv {

/// Reads the palette of a file in any supported format. `format` names an image format, "ACT",
/// "ACO" or an extension; other palette files are recognised by their first bytes. Missing entries
/// keep their value for images, "ACT" and "ACO", and become 0 for the others.
bool readPalette(QIODevice* device, const QByteArray& format, RGBA (&palette)[256]);

/// Writes "ACT" or a format of an extension.
bool writePalette(QIODevice* device, const QByteArray& format, const RGBA (&palette)[256]);

}  // namespace Zorv
