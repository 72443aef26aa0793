#pragma once

#include "graphics/renderer.h"
#include "graphics/shader_p.h"

#include <QMatrix4x4>

#include <vector>

namespace Zorv {

class Texture;

/// The programs of a widget, and the state that its GL context is known to be in, so that no call
/// sets what is set already. All calls need the context to be current.
class TextureDrawing
{
public:
    /// Compiles nothing; the programs are children of `parent`.
    void makePrograms(QObject* parent);
    void deletePrograms();
    bool hasPrograms() const { return indexed.programs[0] != nullptr; }

    /// The shader that tints such an image. It is made when it is asked for first: most stages
    /// never do.
    Shader& tinted(bool isIndexed, QObject* parent);

    void begin();
    void end(QOpenGLFunctions& gl);

    void setBlend(QOpenGLFunctions& gl, bool on);
    void setBlendEquation(QOpenGLFunctions& gl, Renderer::BlendEquation equation);
    void setBlendFunction(QOpenGLFunctions& gl, Renderer::BlendFactor source,
                          Renderer::BlendFactor destination);

    /// Binds program and textures; false if the program is not whole.
    bool bind(QOpenGLFunctions& gl, Shader& shader, int variant, const Texture& image,
              const Texture* palette);
    void setMatrix(QOpenGLFunctions& gl, const QMatrix4x4& matrix);
    void setMaskAndOpacity(QOpenGLFunctions& gl, bool mask, float opacity);
    void setTint(QOpenGLFunctions& gl, QRgb tint);

    /// Somebody else has had the context.
    void forget();

    /// Draws triangles of two floats a vertex. `positions` is compared as an address alone.
    void draw(QOpenGLFunctions& gl, const float* positions, const float* texCoords, int vertices);

    /// Where the texture coordinates of the unit square stand, in the order of its corners.
    const float* unitTexCoords(float uMax, float vMax, unsigned char flip);

    Shader indexed;
    Shader rgba;
    Shader tintedIndexed;
    Shader tintedRgba;
    const Texture* lastPalette = nullptr;
    QOpenGLShaderProgram* lastProgram = nullptr;
    QMatrix4x4 projection;
    std::vector<float> tiles;  // kept, for the next draw to need no memory

private:
    struct Array
    {
        int location = -1;  // enabled, unless it is -1
        const float* data = nullptr;
    };

    void activate(QOpenGLFunctions& gl, int unit);
    void setSamplers(QOpenGLFunctions& gl, bool hasPalette);
    void setArrays(QOpenGLFunctions& gl, const float* positions, const float* texCoords);
    void disableArrays(QOpenGLFunctions& gl);
    void forgetBlending();
    std::array<Shader*, 4> shaders() { return {&indexed, &rgba, &tintedIndexed, &tintedRgba}; }

    bool m_isOpen = false;  // between begin() and end()
    Shader* m_shader = nullptr;
    Uniforms* m_uniforms = nullptr;

    bool m_blendEnabled = false;
    int m_blendEquation = 0;  // 0, -1 and -1: not known
    int m_blendSource = -1;
    int m_blendDestination = -1;

    int m_unit = -1;
    bool m_hasImage = false;
    quint32 m_image = 0;
    quint32 m_nameCount = 0;  // when the image was bound
    Array m_positions;
    Array m_texCoords;
    float m_unitTexCoords[12];
};

}  // namespace Zorv
