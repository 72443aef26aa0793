#include "graphics/renderer.h"

#include "graphics/renderwidget.h"
#include "graphics/renderwidget_p.h"
#include "graphics/texture.h"

#include <QMetaMethod>

namespace Zorv {

namespace {

// Textures are stored bottom row first, so the upper edge of the square maps to the start of the
// texture.
const float s_unitSquare[] = {0, 1, 0, 0, 1, 0, 1, 0, 1, 1, 0, 1};

}  // namespace

Renderer::Renderer() = default;

Renderer::~Renderer()
{
    if (m_widget) {
        m_widget->d->renderer = nullptr;
    }
}

void Renderer::keyPressed(int, Qt::KeyboardModifiers) {}
void Renderer::keyReleased(int, Qt::KeyboardModifiers) {}
void Renderer::mousePressed(QPoint, Qt::MouseButton, Qt::KeyboardModifiers) {}
void Renderer::mouseReleased(QPoint, Qt::MouseButton, Qt::KeyboardModifiers) {}
void Renderer::mouseMoved(QPoint, Qt::KeyboardModifiers) {}
void Renderer::mouseWheel(int) {}
void Renderer::sizeChanged(int, int) {}
void Renderer::pointerMoved(QPointF) {}
void Renderer::focusLost() {}
void Renderer::mouseLeft() {}
void Renderer::grabLost() {}

QColor Renderer::clearColor() const
{
    return Qt::magenta;
}

// Null until the widget has GL.
TextureDrawing* Renderer::drawing() const
{
    return m_widget && m_widget->d->drawing.hasPrograms() ? &m_widget->d->drawing : nullptr;
}

void Renderer::glBeginTextureDrawing()
{
    if (TextureDrawing* const state = drawing()) {
        state->begin();
    }
}

void Renderer::glEndTextureDrawing()
{
    if (TextureDrawing* const state = drawing()) {
        state->end(*this);
    }
}

void Renderer::glSetBlend(bool on)
{
    if (TextureDrawing* const state = drawing()) {
        state->setBlend(*this, on);
    }
}

void Renderer::glSetBlendEquation(BlendEquation equation)
{
    if (TextureDrawing* const state = drawing()) {
        state->setBlendEquation(*this, equation);
    }
}

void Renderer::glSetBlendFunction(BlendFactor source, BlendFactor destination)
{
    if (TextureDrawing* const state = drawing()) {
        state->setBlendFunction(*this, source, destination);
    }
}

void Renderer::glDrawImage(const QMatrix4x4& matrix, Texture* image, Texture* palette,
                           unsigned char flip, float opacity, bool mask, unsigned char shader)
{
    if (!canDraw(image) || shader >= Shader::Variants) {
        return;
    }
    TextureDrawing& state = *drawing();
    Shader& family = image->kind == Texture::IndexedKind ? state.indexed : state.rgba;
    if (state.bind(*this, family, shader, *image, palette)) {
        drawUnit(matrix, *image, flip, opacity, mask);
    }
}

void Renderer::glDrawTinted(const QMatrix4x4& matrix, Texture* image, Texture* palette,
                            unsigned char flip, float opacity, const QColor& tint)
{
    if (!canDraw(image)) {
        return;
    }
    TextureDrawing& state = *drawing();
    Shader& family = state.tinted(image->kind == Texture::IndexedKind, m_widget);
    if (state.bind(*this, family, Plain, *image, palette)) {
        state.setTint(*this, tint.rgb());
        drawUnit(matrix, *image, flip, opacity, true);
    }
}

bool Renderer::canDraw(const Texture* image) const
{
    return drawing() && image && image->id != 0 && image->kind > Texture::PaletteKind &&
           !image->isStale();
}

/// Uses the program currently bound.
void Renderer::drawUnit(const QMatrix4x4& matrix, const Texture& image, unsigned char flip,
                        float opacity, bool mask)
{
    TextureDrawing& state = *drawing();
    state.setMaskAndOpacity(*this, mask, opacity);
    state.setMatrix(*this, state.projection * matrix);
    if (!letOthersSetUniforms()) {
        return;
    }
    const float* const texCoords = state.unitTexCoords(float(image.uMax), float(image.vMax), flip);
    state.draw(*this, s_unitSquare, texCoords, 6);
}

// A slot may set any uniform, bind textures and activate another texture unit, so the known state
// is dropped. False if the slot has detached the widget.
bool Renderer::letOthersSetUniforms()
{
    TextureDrawing& state = m_widget->d->drawing;
    emit m_widget->setCustomShaderUniformValues(state.lastProgram);
    static const QMetaMethod signal =
        QMetaMethod::fromSignal(&RenderWidget::setCustomShaderUniformValues);
    if (m_widget && m_widget->isSignalConnected(signal)) {
        state.forget();
    }
    return m_widget;
}

void Renderer::update()
{
    if (m_widget) {
        m_widget->update();
    }
}

}  // namespace Zorv
