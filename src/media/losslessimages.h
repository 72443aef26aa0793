#pragma once

#include "zorv_export.h"

namespace Zorv {

/// Chooses how `loadImage()` and `PaletteObject::fromFile()` treat some kinds of image.
///
/// Off, as it is at start, images are read in the way that hosts written against the
/// first release of the library count on: the last quarter of each line of an
/// RGB32 image from a PNG or BMP is cleared, as is every line of a form other than
/// indexed, RGB32 and ARGB32 (such as a PNG of one bit a pixel); a GIF frame takes the
/// colours of the whole file before its own; a PCX file that ends too soon counts as read; and
/// a palette is refused from an indexed image, while a true-colour one gives opaque black.
///
/// On, pixels arrive as the file has them, in one of those three forms: 1 and 8 bits of
/// grey become indexed, 16 bits a channel become 8. A frame's own colours go first, a file that
/// is cut short is told, and a palette is taken from an indexed image that has one, and refused
/// from any other. The command line and the window switch it on at start.
///
/// One switch for the process; safe to set and read from any thread.
ZORV_EXPORT void setLosslessImages(bool on);
ZORV_EXPORT bool losslessImages();

}  // namespace Zorv
