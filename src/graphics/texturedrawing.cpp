// Drawing of textured triangles with as few GL calls as possible.
//
// Every setter compares with a cached value first and calls GL only on a difference. The cache
// covers blending, the bound program and textures, the uniforms of each program and the vertex
// arrays. Between begin() and end() nothing else changes the GL state, so the cache stays valid
// over many draws. Outside of such a batch bind() drops the cache and draw() disables its arrays,
// so every draw stands alone. end() restores what QPainter expects.

#include "graphics/texturedrawing_p.h"

#include "graphics/glcontext_p.h"
#include "graphics/texture.h"

#include <QOpenGLShaderProgram>

#include <algorithm>
#include <utility>

namespace Zorv {

namespace {

const GLenum s_blendFuncs[] = {GL_ZERO,      GL_ONE,       GL_SRC_COLOR,
                               GL_DST_COLOR, GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA};

constexpr GLenum Units[] = {GL_TEXTURE0, GL_TEXTURE1};

}  // namespace

void TextureDrawing::makePrograms(QObject* parent)
{
    for (Shader* shader : {&indexed, &rgba}) {
        for (QOpenGLShaderProgram*& program : shader->programs) {
            program = new QOpenGLShaderProgram(parent);
        }
    }
}

Shader& TextureDrawing::tinted(bool isIndexed, QObject* parent)
{
    Shader& shader = isIndexed ? tintedIndexed : tintedRgba;
    if (!shader.programs[0]) {
        shader.programs[0] = new QOpenGLShaderProgram(parent);
        setupShader(shader, nullptr, isIndexed ? s_tintedIndexedShader : s_tintedRgbaShader);
    }
    return shader;
}

void TextureDrawing::deletePrograms()
{
    for (Shader* shader : shaders()) {
        for (QOpenGLShaderProgram* program : shader->programs) {
            delete program;
        }
        *shader = Shader();
    }
    lastProgram = nullptr;
    m_positions = m_texCoords = Array();
    m_blendEnabled = false;
    begin();
    m_isOpen = false;
}

void TextureDrawing::begin()
{
    lastProgram = nullptr;
    m_isOpen = true;
    // QPainter changes blending between two batches.
    forgetBlending();
    forget();
}

void TextureDrawing::end(QOpenGLFunctions& gl)
{
    for (int unit : {0, 1}) {
        activate(gl, unit);
        gl.glBindTexture(GL_TEXTURE_2D, 0);
    }
    if (m_blendEnabled) {
        m_blendEnabled = false;
        gl.glDisable(GL_BLEND);
    }
    setBlendEquation(gl, Renderer::Add);
    setBlendFunction(gl, Renderer::SourceAlpha, Renderer::OneMinusSourceAlpha);
    disableArrays(gl);
    if (lastProgram) {
        lastProgram->release();
    }
    m_isOpen = false;
}

void TextureDrawing::forget()
{
    lastPalette = nullptr;
    m_unit = -1;
    m_hasImage = false;
    m_positions.data = m_texCoords.data = nullptr;
    for (Shader* shader : shaders()) {
        for (Uniforms& uniforms : shader->uniforms) {
            uniforms = Uniforms();
        }
    }
}

void TextureDrawing::forgetBlending()
{
    m_blendEquation = 0;
    m_blendSource = m_blendDestination = -1;
}

void TextureDrawing::setBlend(QOpenGLFunctions& gl, bool on)
{
    if (m_blendEnabled == on) {
        return;
    }
    if (on) {
        gl.glEnable(GL_BLEND);
    } else {
        gl.glDisable(GL_BLEND);
        forgetBlending();
    }
    m_blendEnabled = on;
}

void TextureDrawing::setBlendEquation(QOpenGLFunctions& gl, Renderer::BlendEquation equation)
{
    const int value =
        equation == Renderer::ReverseSubtract ? GL_FUNC_REVERSE_SUBTRACT : GL_FUNC_ADD;
    if (m_blendEquation != value) {
        m_blendEquation = value;
        gl.glBlendEquation(GLenum(value));
    }
}

void TextureDrawing::setBlendFunction(QOpenGLFunctions& gl, Renderer::BlendFactor source,
                                      Renderer::BlendFactor destination)
{
    if (std::max<unsigned>(source, destination) >= std::size(s_blendFuncs)) {
        return;
    }
    const int sourceFactor = int(s_blendFuncs[source]);
    const int destinationFactor = int(s_blendFuncs[destination]);
    if (m_blendSource != sourceFactor || m_blendDestination != destinationFactor) {
        m_blendSource = sourceFactor;
        m_blendDestination = destinationFactor;
        gl.glBlendFunc(GLenum(sourceFactor), GLenum(destinationFactor));
    }
}

bool TextureDrawing::bind(QOpenGLFunctions& gl, Shader& shader, int variant, const Texture& image,
                          const Texture* palette)
{
    if (!shader.isWhole[variant]) {
        return false;
    }
    if (!m_isOpen) {
        forget();
    }
    m_shader = &shader;
    m_uniforms = &shader.uniforms[variant];
    if (lastProgram != shader.programs[variant]) {
        lastProgram = shader.programs[variant];
        lastProgram->bind();
        setSamplers(gl, palette != nullptr);
    }
    // GL reuses names, so an equal name may be another texture.
    if (!m_hasImage || m_image != image.id || m_nameCount != textureNameCount()) {
        activate(gl, 0);
        gl.glBindTexture(GL_TEXTURE_2D, image.id);
        m_hasImage = true;
        m_image = image.id;
        m_nameCount = textureNameCount();
    }
    if (palette && palette != lastPalette) {
        lastPalette = palette;
        if (palette->id != 0 && !palette->isStale()) {
            activate(gl, 1);
            gl.glBindTexture(GL_TEXTURE_2D, palette->id);
        }
    }
    return true;
}

void TextureDrawing::activate(QOpenGLFunctions& gl, int unit)
{
    if (m_unit != unit) {
        m_unit = unit;
        gl.glActiveTexture(Units[unit]);
    }
}

// Without a palette, the palette sampler keeps its value.
void TextureDrawing::setSamplers(QOpenGLFunctions& gl, bool hasPalette)
{
    if (m_shader->image >= 0 && m_uniforms->image != 0) {
        m_uniforms->image = 0;
        gl.glUniform1i(m_shader->image, 0);
    }
    if (hasPalette && m_shader->palette >= 0 && m_uniforms->palette != 1) {
        m_uniforms->palette = 1;
        gl.glUniform1i(m_shader->palette, 1);
    }
}

void TextureDrawing::setMatrix(QOpenGLFunctions& gl, const QMatrix4x4& matrix)
{
    const float* const values = matrix.constData();
    std::array<float, 16>& known = m_uniforms->matrix;
    if (m_shader->matrix >= 0 &&
        !(m_uniforms->hasMatrix && std::equal(known.begin(), known.end(), values))) {
        m_uniforms->hasMatrix = true;
        std::copy_n(values, known.size(), known.begin());
        gl.glUniformMatrix4fv(m_shader->matrix, 1, GL_FALSE, values);
    }
}

void TextureDrawing::setMaskAndOpacity(QOpenGLFunctions& gl, bool mask, float opacity)
{
    if (m_shader->mask >= 0 && m_uniforms->mask != int(mask)) {
        m_uniforms->mask = int(mask);
        gl.glUniform1i(m_shader->mask, int(mask));
    }
    if (m_shader->opacity >= 0 && !(m_uniforms->hasOpacity && m_uniforms->opacity == opacity)) {
        m_uniforms->hasOpacity = true;
        m_uniforms->opacity = opacity;
        gl.glUniform1f(m_shader->opacity, opacity);
    }
}

void TextureDrawing::setTint(QOpenGLFunctions& gl, QRgb tint)
{
    if (m_shader->tint >= 0 && !(m_uniforms->hasTint && m_uniforms->tint == tint)) {
        m_uniforms->hasTint = true;
        m_uniforms->tint = tint;
        const QColor color(tint);
        gl.glUniform3f(m_shader->tint, float(color.redF()), float(color.greenF()),
                       float(color.blueF()));
    }
}

void TextureDrawing::draw(QOpenGLFunctions& gl, const float* positions, const float* texCoords,
                          int vertices)
{
    setArrays(gl, positions, texCoords);
    gl.glDrawArrays(GL_TRIANGLES, 0, vertices);
    if (!m_isOpen) {
        disableArrays(gl);
    }
}

void TextureDrawing::setArrays(QOpenGLFunctions& gl, const float* positions, const float* texCoords)
{
    const std::pair<Array&, Array> arrays[] = {{m_positions, {m_shader->position, positions}},
                                               {m_texCoords, {m_shader->texCoord, texCoords}}};
    for (const auto& [known, wanted] : arrays) {
        // Another program may have the two locations swapped.
        if (known.location >= 0 && known.location != wanted.location) {
            disableArrays(gl);
        }
    }
    for (const auto& [known, wanted] : arrays) {
        if (wanted.location < 0 || known.data == wanted.data) {
            continue;
        }
        if (known.location < 0 || !known.data) {
            gl.glEnableVertexAttribArray(GLuint(wanted.location));
        }
        gl.glVertexAttribPointer(GLuint(wanted.location), 2, GL_FLOAT, GL_FALSE, 0, wanted.data);
        known = wanted;
    }
}

void TextureDrawing::disableArrays(QOpenGLFunctions& gl)
{
    for (Array* array : {&m_texCoords, &m_positions}) {
        if (array->location >= 0) {
            gl.glDisableVertexAttribArray(GLuint(array->location));
        }
        *array = Array();
    }
}

const float* TextureDrawing::unitTexCoords(float uMax, float vMax, unsigned char flip)
{
    float u0 = 0;
    float u1 = uMax;
    float v0 = 0;
    float v1 = vMax;
    if (flip & Renderer::FlipHorizontally) {
        std::swap(u0, u1);
    }
    if (flip & Renderer::FlipVertically) {
        std::swap(v0, v1);
    }
    const float corners[] = {u0, v0, u0, v1, u1, v1, u1, v1, u1, v0, u0, v0};
    std::copy(std::begin(corners), std::end(corners), m_unitTexCoords);
    return m_unitTexCoords;
}

}  // namespace Zorv
