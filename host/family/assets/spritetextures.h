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

/// The textures of a collection's pixels, made when they are drawn.
///
/// Sprites with the same pixels share one. There are two kinds for indexed pixels, indices and
/// colours. Those that were not drawn for the longest time go when all take more than a limit, and
/// those of pixels that no sprite of the list shows at the end of the step. Main thread only.
class SpriteTextures
{
public:
    /// `limit` is in bytes; a texture that is larger stays by itself until the next one comes.
    explicit SpriteTextures(int limit = 128 * 1024 * 1024) : m_textures(limit) {}

    /// The texture of pixels: of indices if `image` gives any and `asIndices` is set, otherwise of
    /// colours. Null where GL does not work, and for an image that is null, which is not asked for
    /// again. Good until the next call.
    Zorv::Texture* texture(const PixelData* pixels, bool asIndices,
                           const std::function<QImage()>& image);

    /// Forgets the textures of pixels at once.
    void drop(const PixelData* pixels);

    /// A sprite of the list shows pixels, or no longer does; `dropReleased()` forgets those that no
    /// `keep()` came for meanwhile.
    void keep(const PixelData* pixels);
    void release(const PixelData* pixels);
    void dropReleased();

private:
    using Key = QPair<const PixelData*, bool>;

    QCache<Key, Zorv::Texture> m_textures;
    QSet<const PixelData*> m_released;
};

/// The texture units of the stage.
enum TextureUnit { ImageUnit = 0, PaletteUnit = 1 };

/// Binds a texture to a unit of the current context, and leaves the first one active. Nothing
/// without a context or texture.
void bindTexture(const Zorv::Texture* texture, TextureUnit unit);

}  // namespace Family
