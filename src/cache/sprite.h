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

/// One image of a sprite collection, with its hot spot and its palette.
///
/// Implemented by the host. Editors take it anew by its index after every change that the
/// collection signals. Main thread only.
class ZORV_EXPORT Sprite : public PropertyItem
{
public:
    /// Which palette a sprite gets with new pixels, as the person chooses it.
    enum PaletteMode {
        ImagePalette = 1,   ///< the image's own, added unless the collection has it
        ForcePalette = 2,   ///< the given one; the image is adapted to it
        ReplacePalette = 3  ///< the given one takes the image's colours, for all who use it
    };

    ~Sprite() override;

    /// Appends a copy right behind this sprite.
    virtual void duplicate() = 0;

    /// Drops what was derived from the pixels, so that it is made anew.
    virtual void reload() = 0;

    /// Makes the sprite's texture the image texture of the renderer.
    virtual void bindTexture() = 0;

    /// Replaces the pixels by those of an image whose colour table equals the palette, or that has
    /// no colour table.
    virtual void setImage(const QImage& image) = 0;

    /// The same as `setImage()` of the image, with what was worked out before. `prepared` is of the
    /// preparer of this collection; any other is taken for its image alone.
    virtual void setPrepared(const PreparedImage& prepared);

    /// Replaces pixels and palette. With `reversed` the order of the image's colours is reversed
    /// first; `mode` is a `PaletteMode`; `palette` is that of the choice, null for the sprite's
    /// own.
    virtual void setImage(const QImage& image, bool reversed, int mode, Palette* palette) = 0;

    /// The palette; null for a sprite without one, as of true colour.
    virtual Palette* palette() const = 0;

    /// The hot spot, in pixels from the top left corner.
    virtual QPoint axis() const = 0;

    /// Gives the sprite another palette of its collection; its pixels stay.
    virtual void setPalette(Palette* palette) = 0;

    /// Makes a sprite of each colour channel, behind this one; see the host for what that means.
    virtual void splitChannels() = 0;

    /// The pixels, decoded when they are asked for: `Format_Indexed8` with the colours of the
    /// palette, or `Format_ARGB32`. Null if they are broken.
    virtual QImage image() const = 0;

    /// Width and height, without decoding.
    virtual QSize size() const = 0;

    /// The pixels on the stage, made when they are asked for; null if they are broken. The
    /// sprite's.
    virtual Texture* texture() const = 0;

    /// The pixels for a sprite of another collection of the same host. As it stands here they are
    /// those of `image()`, which is decoded at once; a host that has them packed hands these over.
    /// Never null.
    virtual std::shared_ptr<PixelCopy> copyPixels() const;
};

}  // namespace Zorv
