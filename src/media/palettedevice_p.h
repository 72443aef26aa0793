#pragma once

#include "media/colortypes.h"

class QByteArray;
class QIODevice;

namespace Zorv {

/// Fills `palette` from a file of any format that holds one. The format names images, "ACT",
/// "ACO" and those of extensions; other palette files are known by their first bytes.
/// Entries that the file lacks stay as they are for the three named, and become 0 for others.
bool readPalette(QIODevice* device, const QByteArray& format, RGBA (&palette)[256]);

/// Writes "ACT", or a format of an extension.
bool writePalette(QIODevice* device, const QByteArray& format, const RGBA (&palette)[256]);

}  // namespace Zorv
