#include "graphics/renderer.h"

#include "graphics/renderwidget.h"
#include "graphics/renderwidget_p.h"

namespace Zorv {

Renderer::Renderer() = default;
Renderer::~Renderer() = default;

void Renderer::keyPressed(int, Qt::KeyboardModifiers) {}
void Renderer::keyReleased(int, Qt::KeyboardModifiers) {}
void Renderer::mousePressed(QPoint, Qt::MouseButton, Qt::KeyboardModifiers) {}
void Renderer::mouseReleased(QPoint, Qt::MouseButton, Qt::KeyboardModifiers) {}
void Renderer::mouseMoved(QPoint, Qt::KeyboardModifiers) {}
void Renderer::mouseWheel(int) {}
void Renderer::sizeChanged(int, int) {}

QColor Renderer::clearColor() const
{
    return Qt::magenta;
}

void Renderer::glBeginTextureDrawing() {}
void Renderer::glEndTextureDrawing() {}
void Renderer::glSetBlend(bool) {}
void Renderer::glSetBlendEquation(BlendEquation) {}
void Renderer::glSetBlendFunction(BlendFactor, BlendFactor) {}

void Renderer::glDrawImage(const QMatrix4x4&, Texture*, Texture*, unsigned char, float, bool,
                           unsigned char)
{
}

void Renderer::glDrawImageTiled(QPoint, QPoint, const QMatrix4x4&, Texture*, Texture*,
                                unsigned char, float, bool)
{
}

void Renderer::update()
{
    if (m_widget) {
        m_widget->update();
    }
}

}  // namespace Zorv
