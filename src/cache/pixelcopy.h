#pragma once

#include "zorv_export.h"

namespace Zorv {

class Sprite;

/// The pixels of a sprite, on their way to a sprite of another collection.
///
/// Created by `Sprite::copyPixels()` in the main thread. Afterwards the source sprite and its
/// collection may be deleted. Use it once: `read()`, then `putInto()`.
class ZORV_EXPORT PixelCopy
{
public:
    virtual ~PixelCopy();

    /// Does the slow part, such as decompression. May be called in any thread. Returns false if the
    /// pixels are damaged and cannot be used.
    virtual bool read() = 0;

    /// Replaces the pixels of a sprite of the same host. The sprite's palette stays; call
    /// `Sprite::setPalette()` afterwards to set the colours of the indices. True colour has no
    /// palette. A copy without pixels clears the sprite. Main thread only. Returns false, without
    /// any change, if the sprite cannot take the pixels.
    virtual bool putInto(Sprite* sprite) = 0;
};

}  // namespace Zorv
