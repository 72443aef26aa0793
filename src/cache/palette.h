#pragma once

#include "code/codedoc/propertyitem.h"
#include "media/colortypes.h"
#include "zorv_export.h"

namespace Zorv {

class Palettes;
class Texture;

/// One palette of a sprite collection. Implemented by the host. Main thread only.
class ZORV_EXPORT Palette : public PropertyItem
{
public:
    /// What `setColors()` does to the sprites that use the palette.
    enum ColorsMode {
        AdaptPixels = 1,  ///< their pixels change to the nearest of the new colours
        KeepPixels = 2    ///< their pixels stay and show the new colours
    };

    ~Palette() override;

    /// The row in the list.
    virtual unsigned index() const = 0;

    /// Rebuilds the palette texture from the colours and makes it current.
    virtual void reload() = 0;

    /// Copies the colours to `colors`. Entries that the palette does not have
    /// stay unchanged.
    virtual void toPalette(RGBA (&colors)[256]) const = 0;

    /// Replaces the colours; `mode` is a `ColorsMode`.
    virtual void setColors(const RGBA (&colors)[256], int mode) = 0;

    /// The list that contains this palette.
    virtual Palettes* owner() const = 0;

    /// The colours as a texture for the stage, created on demand. Owned by the
    /// palette.
    virtual Texture* texture() const = 0;
};

}  // namespace Zorv
