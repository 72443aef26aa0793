#pragma once

#include "graphics/renderer.h"
#include "graphics/shader_p.h"

#include <QMatrix4x4>

#include <vector>

namespace Zorv {

class Texture;

/// The programs of a widget, and a cache of the state of its GL context, so that nothing is set
/// twice. All calls need the context to be current.
class TextureDrawing
{
public:
    /// Creates the programs as children of `parent`, without compiling them.
    void makePrograms(QObject* parent);
    void deletePrograms();
    bool hasPrograms() const { return indexed.programs[0] != nullptr; }

    /// The tinting shader for indexed or other images. Created on first use, because most stages
    /// never tint.
    Shader& tinted(bool isIndexed, QObject* parent);

    void begin();
    void end(QOpenGLFunctions& gl);

    void setBlend(QOpenGLFunctions& gl, bool on);
    void setBlendEquation(QOpenGLFunctions& gl, Renderer::BlendEquation equation);
    void setBlendFunction(QOpenGLFunctions& gl, Renderer::BlendFactor source,
                          Renderer::BlendFactor destination);

    /// Binds program and textures; false if the program did not compile.
    bool bind(QOpenGLFunctions& gl, Shader& shader, int variant, const Texture& image,
              const Texture* palette);
    void setMatrix(QOpenGLFunctions& gl, const QMatrix4x4& matrix);
    void setMaskAndOpacity(QOpenGLFunctions& gl, bool mask, float opacity);
    void setTint(QOpenGLFunctions& gl, QRgb tint);

    /// Drops the cached state, because other code has used the context.
    void forget();

    /// Draws triangles with two floats per vertex. `positions` is compared by address only.
    void draw(QOpenGLFunctions& gl, const float* positions, const float* texCoords, int vertices);

    /// The texture coordinates of the unit square, in the order of its corners.
    const float* unitTexCoords(float uMax, float vMax, unsigned char flip);

    Shader indexed;
    Shader rgba;
    Shader tintedIndexed;
    Shader tintedRgba;
    const Texture* lastPalette = nullptr;
    QOpenGLShaderProgram* lastProgram = nullptr;
    QMatrix4x4 projection;
    std::vector<float> tiles;  // kept to save an allocation in the next draw

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
    int m_blendEquation = 0;  // 0, -1 and -1: unknown
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
