#include "graphics/texture.h"

#include "graphics/glcontext_p.h"

#include <QImage>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <utility>

// Not defined by OpenGL ES.
#ifndef GL_CLAMP
#define GL_CLAMP 0x2900
#endif
#ifndef GL_LUMINANCE8
#define GL_LUMINANCE8 0x8040
#endif
#ifndef GL_R8
#define GL_R8 0x8229
#define GL_RED 0x1903
#endif
#ifndef GL_RGBA8
#define GL_RGBA8 0x8058
#endif

namespace Zorv {

namespace {

/// How GL stores a texture, and how it interprets the bytes of an indexed one.
struct Formats
{
    GLint index;
    GLenum indexBytes;
    GLint color;
    GLint clamp;
};

/// The choice depends on the GL version. All three look the same: the shaders read only the red
/// channel of an index and sample palette texels only inside their range.
Formats formatsOf(const QOpenGLContext& context)
{
    if (context.isOpenGLES()) {
        return {GL_LUMINANCE, GL_LUMINANCE, GL_RGBA, GL_CLAMP_TO_EDGE};
    }
    if (context.format().profile() == QSurfaceFormat::CoreProfile) {
        return {GL_R8, GL_RED, GL_RGBA8, GL_CLAMP_TO_EDGE};
    }
    return {GL_LUMINANCE8, GL_LUMINANCE, GL_RGBA8, GL_CLAMP};
}

void setParameters(QOpenGLFunctions& gl, GLint wrapS)
{
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrapS);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
}

/// Whether there are enough bytes for GL to read.
bool isWhole(const Texture::ImageData& data)
{
    const QSize size = data.textureSize;
    return !data.bytes.isEmpty() && !size.isEmpty() && !data.size.isEmpty() &&
           qint64(size.width()) * size.height() <= data.bytes.size() / (data.indexed ? 1 : 4);
}

bool isTooLarge(QOpenGLFunctions& gl, const QSize& size)
{
    GLint largest = 0;
    gl.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    return std::max(size.width(), size.height()) > largest;
}

}  // namespace

Texture::Texture() = default;

Texture::Texture(const QImage& image)
{
    fromImage(image);
}

Texture::Texture(const RGBA* palette)
{
    fromPalette(palette);
}

Texture::Texture(const ImageData& data)
{
    fromData(data);
}

Texture::~Texture()
{
    releaseTextureName(isStale() ? 0 : id, m_contextNumber);
}

bool Texture::isStale() const
{
    return id != 0 && (m_isDeleted || (m_contextNumber != 0 && m_contextNumber != contextNumber()));
}

void Texture::fromImage(const QImage& image)
{
    ImageData data;
    dataFromImage(image, data);
    fromData(data);
}

void Texture::fromPalette(const RGBA* palette)
{
    const ContextScope scope;
    deleteName(scope.gl());
    if (!palette || !scope.gl()) {
        return;
    }
    makeName(*scope.gl());
    const Formats formats = formatsOf(*QOpenGLContext::currentContext());
    setParameters(*scope.gl(), formats.clamp);
    scope.gl()->glTexImage2D(GL_TEXTURE_2D, 0, formats.color, 256, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                             palette);
    uMax = vMax = 1.0;
    size = QSize(256, 1);
    kind = PaletteKind;
}

void Texture::fromData(const ImageData& data)
{
    const ContextScope scope;
    deleteName(scope.gl());
    if (!isWhole(data) || !scope.gl()) {
        return;
    }
    makeName(*scope.gl());
    const Formats formats = formatsOf(*QOpenGLContext::currentContext());
    setParameters(*scope.gl(), GL_REPEAT);
    scope.gl()->glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    scope.gl()->glTexImage2D(GL_TEXTURE_2D, 0, data.indexed ? formats.index : formats.color,
                             data.textureSize.width(), data.textureSize.height(), 0,
                             data.indexed ? formats.indexBytes : GL_RGBA, GL_UNSIGNED_BYTE,
                             data.bytes.constData());
    size = data.size;
    uMax = double(float(size.width()) / float(data.textureSize.width()));
    vMax = double(float(size.height()) / float(data.textureSize.height()));
    kind = data.indexed ? IndexedKind : RgbaKind;
    if (isTooLarge(*scope.gl(), data.textureSize)) {
        // Without an image the name would be drawn black.
        deleteName(scope.gl());
    }
}

void Texture::reset()
{
    if (id != 0) {
        const ContextScope scope;
        deleteName(scope.gl());
        if (!isStale()) {
            // On another thread, or GL is already gone.
            releaseTextureName(id, m_contextNumber);
        }
        id = 0;
    }
}

void Texture::swap(Texture& other)
{
    std::swap(id, other.id);
    std::swap(m_isDeleted, other.m_isDeleted);
    std::swap(m_contextNumber, other.m_contextNumber);
}

void Texture::deleteName(QOpenGLFunctions* gl)
{
    if (gl && id != 0 && !isStale()) {
        deleteTextureName(*gl, id);
        m_isDeleted = true;
    }
}

void Texture::makeName(QOpenGLFunctions& gl)
{
    id = makeTextureName(gl);
    m_isDeleted = false;
    m_contextNumber = contextNumber();
    gl.glBindTexture(GL_TEXTURE_2D, id);
}

}  // namespace Zorv
