#pragma once

#include <QCache>
#include <QPair>
#include <QSet>

#include <functional>

class QImage;

namespace Zorv {
class Texture;
}

namespace Family {

class PixelData;

/// A least-recently-used cache of the textures for a collection's pixels, with a byte limit.
/// Textures are created when they are drawn.
///
/// Sprites with equal pixels share a texture. Indexed pixels have two kinds: indices and colours.
/// Beyond the limit, the textures that were not drawn for the longest time are dropped. At the end
/// of each step, textures of pixels that no sprite in the list shows are dropped too. Main thread
/// only.
class SpriteTextures
{
public:
    /// `limit` is in bytes. A larger texture stays alone until the next one is created.
    explicit SpriteTextures(int limit = 128 * 1024 * 1024) : m_textures(limit) {}

    /// The texture of pixels: of indices if `asIndices` is set and `image` gives any, otherwise of
    /// colours. Null if GL does not work, or if the image is null; then it is not requested again.
    /// Valid until the next call.
    Zorv::Texture* texture(const PixelData* pixels, bool asIndices,
                           const std::function<QImage()>& image);

    /// Drops the textures of pixels at once.
    void drop(const PixelData* pixels);

    /// A sprite of the list now shows these pixels, or no longer does. `dropReleased()` drops
    /// released ones that were not kept again.
    void keep(const PixelData* pixels);
    void release(const PixelData* pixels);
    void dropReleased();

private:
    using Key = QPair<const PixelData*, bool>;

    QCache<Key, Zorv::Texture> m_textures;
    QSet<const PixelData*> m_released;
};

/// The texture units that the stage uses.
enum TextureUnit { ImageUnit = 0, PaletteUnit = 1 };

/// Binds a texture to a unit of the current context, then makes the first unit active. Does nothing
/// without a context or texture.
void bindTexture(const Zorv::Texture* texture, TextureUnit unit);

}  // namespace Family
