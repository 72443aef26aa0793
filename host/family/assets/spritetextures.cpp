#include "family/assets/spritetextures.h"

#include <zorv/graphics/glcontext.h>
#include <zorv/graphics/texture.h>

#include <QImage>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <algorithm>

namespace Family {

namespace {

int bytesOf(const QImage& image)
{
    return int(std::min<qint64>(image.sizeInBytes(), std::numeric_limits<int>::max()));
}

}  // namespace

Zorv::Texture* SpriteTextures::texture(const PixelData* pixels, bool asIndices,
                                       const std::function<QImage()>& image)
{
    if (!Zorv::isContextUsable()) {
        return nullptr;
    }
    const Key key(pixels, asIndices);
    Zorv::Texture* texture = m_textures.object(key);
    if (!texture) {
        QImage source = image();
        if (!asIndices && !source.isNull()) {
            source = source.convertToFormat(QImage::Format_ARGB32);
        }
        texture = new Zorv::Texture;
        texture->fromImage(source);
        m_textures.insert(key, texture, std::min(bytesOf(source), m_textures.maxCost()));
    }
    return texture->id != 0 ? texture : nullptr;
}

void SpriteTextures::drop(const PixelData* pixels)
{
    m_released.remove(pixels);
    m_textures.remove({pixels, false});
    m_textures.remove({pixels, true});
}

void SpriteTextures::keep(const PixelData* pixels)
{
    m_released.remove(pixels);
}

void SpriteTextures::release(const PixelData* pixels)
{
    if (m_textures.contains({pixels, false}) || m_textures.contains({pixels, true})) {
        m_released.insert(pixels);
    }
}

void SpriteTextures::dropReleased()
{
    const QSet<const PixelData*> released = std::exchange(m_released, {});
    for (const PixelData* pixels : released) {
        drop(pixels);
    }
}

void bindTexture(const Zorv::Texture* texture, TextureUnit unit)
{
    const QOpenGLContext* context = QOpenGLContext::currentContext();
    if (texture && context) {
        QOpenGLFunctions* gl = context->functions();
        gl->glActiveTexture(GLenum(GL_TEXTURE0 + unit));
        gl->glBindTexture(GL_TEXTURE_2D, texture->id);
        gl->glActiveTexture(GL_TEXTURE0);
    }
}

}  // namespace Family
