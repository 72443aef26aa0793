#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

class QIODevice;

namespace Zorv {

/// Reads 256 colours of three bytes, in reverse order: the last one is colour 0. False if the
/// device has fewer. All entries are opaque.
ZORV_EXPORT bool loadACT(QIODevice* device, RGBA (&palette)[256]);

/// Reads a RIFF palette, in reverse order like an ACT file. False without the signature, with more
/// than 256 colours, or with fewer bytes than declared.
ZORV_EXPORT bool loadRIFF(QIODevice* device, RGBA (&palette)[256]);

/// Reads a JASC-PAL text with CR LF line ends. A line that is not a colour leaves its entry
/// unchanged. False without the two header lines.
ZORV_EXPORT bool loadJasc(QIODevice* device, RGBA (&palette)[256]);

/// Reads colour swatches of version 1: RGB, HSB, CMYK and grey. Other colours take no entry. False
/// only for a wrong version.
ZORV_EXPORT bool loadACO(QIODevice* device, RGBA (&palette)[256]);

/// Reads swatch exchange blocks: colours in "RGB ", "CMYK" and "Gray". Other colours take no entry.
/// False only for a wrong version.
ZORV_EXPORT bool loadASE(QIODevice* device, RGBA (&palette)[256]);

/// Reads the lines "R: 1, G: 2, B: 3" of a swatch text. Other lines take no entry. Always true.
ZORV_EXPORT bool loadPainter(QIODevice* device, RGBA (&palette)[256]);

}  // namespace Zorv
