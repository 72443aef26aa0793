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
    /// How `setColors()` treats the sprites that use the palette.
    enum ColorsMode {
        AdaptPixels = 1,  ///< their pixels take the nearest of the new colours
        KeepPixels = 2    ///< their pixels stay, and show the new colours
    };

    ~Palette() override;

    /// The place in the list.
    virtual unsigned index() const = 0;

    /// Makes the palette texture current, anew from the colours.
    virtual void reload() = 0;

    /// Fills `colors`; entries that the palette lacks stay as they are.
    virtual void toPalette(RGBA (&colors)[256]) const = 0;

    /// Replaces the colours; `mode` is a `ColorsMode`.
    virtual void setColors(const RGBA (&colors)[256], int mode) = 0;

    /// The list that it stands in.
    virtual Palettes* owner() const = 0;

    /// The colours on the stage, made when they are asked for. The palette's.
    virtual Texture* texture() const = 0;
};

}  // namespace Zorv
