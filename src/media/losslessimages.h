#pragma once

#include "zorv_export.h"

namespace Zorv {

/// Selects how `loadImage()` and `PaletteObject::fromFile()` treat some kinds of images.
///
/// Off, the default, images are read in the way that hosts written for the first release of the
/// library expect. The last quarter of each line of an RGB32 image from a PNG or BMP is cleared,
/// and so is every line in a format other than indexed, RGB32 and ARGB32 (such as a PNG with one
/// bit per pixel). A GIF frame uses the global colours before its own. A truncated PCX file counts
/// as read. A palette is refused from an indexed image, and a true-colour image gives opaque black.
///
/// On, pixels arrive as in the file, in one of those three formats: 1-bit and 8-bit grey become
/// indexed, 16 bits per channel become 8. A frame's own colours have priority. A truncated file is
/// reported. A palette is taken from an indexed image that has one and refused from any other
/// image. The command line and the window switch it on at start.
///
/// One switch for the process; any thread may set and read it.
ZORV_EXPORT void setLosslessImages(bool on);
ZORV_EXPORT bool losslessImages();

}  // namespace Zorv
