#pragma once

#include "code/codedoc/propertyitem.h"
#include "zorv_export.h"

#include <QPoint>
#include <QSize>

#include <memory>

class QImage;

namespace Zorv {

class Palette;
class PixelCopy;
class PreparedImage;
class Texture;

/// One image of a sprite collection, with its axis and palette.
///
/// Implemented by the host. After every change signal of the collection, editors must fetch the
/// sprite again by its index. Main thread only.
class ZORV_EXPORT Sprite : public PropertyItem
{
public:
    /// Which palette a sprite gets together with new pixels. The user chooses it.
    enum PaletteMode {
        ImagePalette = 1,   ///< the image's own palette; added if the collection lacks it
        ForcePalette = 2,   ///< the given palette; the image is adapted to it
        ReplacePalette = 3  ///< the given palette, which gets the image's colours for all its users
    };

    ~Sprite() override;

    /// Inserts a copy directly behind this sprite.
    virtual void duplicate() = 0;

    /// Discards everything derived from the pixels, so that it is computed again.
    virtual void reload() = 0;

    /// Makes the sprite's texture the current image texture of the renderer.
    virtual void bindTexture() = 0;

    /// Replaces the pixels. The colour table of the image must be equal to the palette or empty.
    virtual void setImage(const QImage& image) = 0;

    /// Like `setImage()`, but reuses work that was done before. If `prepared` does not come from
    /// this collection's preparer, only its image is used.
    virtual void setPrepared(const PreparedImage& prepared);

    /// Replaces pixels and palette. If `reversed` is set, the order of the image's colours is
    /// reversed first. `mode` is a `PaletteMode`. `palette` is the palette it refers to; null means
    /// the sprite's own.
    virtual void setImage(const QImage& image, bool reversed, int mode, Palette* palette) = 0;

    /// The palette; null for a sprite without one, for example in true colour.
    virtual Palette* palette() const = 0;

    /// The axis, in pixels from the top left corner.
    virtual QPoint axis() const = 0;

    /// Assigns another palette of the same collection. The pixels do not change.
    virtual void setPalette(Palette* palette) = 0;

    /// Creates a sprite for each colour channel, behind this one. The host defines the details.
    virtual void splitChannels() = 0;

    /// The pixels, decoded on demand: `Format_Indexed8` with the palette's colours, or
    /// `Format_ARGB32`. Null if they are damaged.
    virtual QImage image() const = 0;

    /// Width and height, without decoding.
    virtual QSize size() const = 0;

    /// The pixels as a texture for the stage, created on demand; null if they are damaged. Owned by
    /// the sprite.
    virtual Texture* texture() const = 0;

    /// The pixels, to be put into a sprite of another collection of the same host. Never null. By
    /// default `image()` is decoded at once; a host that stores compressed pixels passes these on
    /// instead.
    virtual std::shared_ptr<PixelCopy> copyPixels() const;
};

}  // namespace Zorv
