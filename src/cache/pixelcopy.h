#pragma once

#include "zorv_export.h"

namespace Zorv {

class Sprite;

/// The pixels of a sprite by themselves, on their way into a sprite of another collection.
///
/// Made by `Sprite::copyPixels()` in the main thread. From then on it needs neither that sprite nor
/// its collection, so both may go. Used once: `read()`, then `putInto()`.
class ZORV_EXPORT PixelCopy
{
public:
    virtual ~PixelCopy();

    /// Does what takes time, such as unpacking. In any thread. False for broken pixels, which
    /// cannot be put anywhere.
    virtual bool read() = 0;

    /// Replaces the pixels of a sprite of the same host, whose palette stays: what the indices mean
    /// is told by `Sprite::setPalette()` behind it. True colour has no palette. A copy of no pixels
    /// leaves the sprite without any. Main thread. False, and no change, if the sprite cannot take
    /// them.
    virtual bool putInto(Sprite* sprite) = 0;
};

}  // namespace Zorv
