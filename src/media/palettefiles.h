#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

class QIODevice;

namespace Zorv {

/// Reads 256 colours of three bytes. The last of them is colour 0. False if the device
/// has fewer; entries are opaque.
ZORV_EXPORT bool loadACT(QIODevice* device, RGBA (&palette)[256]);

/// Reads a RIFF palette, the last colour first, as in an ACT file. False without its
/// signature, or with more than 256 colours or fewer bytes than it declares.
ZORV_EXPORT bool loadRIFF(QIODevice* device, RGBA (&palette)[256]);

/// Reads a JASC-PAL text with CR LF at line ends. A line that is no colour leaves its
/// entry as it was. False without the two lines at its head.
ZORV_EXPORT bool loadJasc(QIODevice* device, RGBA (&palette)[256]);

/// Reads colour swatches of version 1: RGB, HSB, CMYK and grey; others take no entry. Only
/// the version can fail it.
ZORV_EXPORT bool loadACO(QIODevice* device, RGBA (&palette)[256]);

/// Reads swatch exchange blocks: colours in "RGB ", "CMYK" and "Gray"; others take no
/// entry. Only the version can fail it.
ZORV_EXPORT bool loadASE(QIODevice* device, RGBA (&palette)[256]);

/// Reads the lines "R: 1, G: 2, B: 3" of a text of swatches; other lines take no entry. Always
/// true.
ZORV_EXPORT bool loadPainter(QIODevice* device, RGBA (&palette)[256]);

}  // namespace Zorv
