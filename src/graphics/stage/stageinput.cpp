#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"

#include <QCursor>

namespace Zorv {

void GraphicsRenderer::setPositioningMode() {}

void GraphicsRenderer::setDrawContactBoxMode(ContactBoxCode::BoxType) {}

void GraphicsRenderer::setCaptureMode() {}

GraphicsRenderer::ClickMode GraphicsRenderer::clickMode() const
{
    return ClickMode{};
}

void GraphicsRenderer::deselectContactBoxes() {}

void GraphicsRenderer::moveSelectedContactBoxes(QPoint) {}

void GraphicsRenderer::removeSelectedContactBoxes() {}

void GraphicsRenderer::updateSelectedBoxes() {}

QList<ContactBoxCode*> GraphicsRenderer::selectedContactBoxes()
{
    return {};
}

GraphicsRenderer::RenderElement GraphicsRenderer::hitTest(QPoint)
{
    return RenderElement{};
}

QCursor GraphicsRenderer::elementCursor(RenderElement) const
{
    return QCursor{};
}

void GraphicsRenderer::keyPressed(int, Qt::KeyboardModifiers) {}

void GraphicsRenderer::keyReleased(int, Qt::KeyboardModifiers) {}

void GraphicsRenderer::mousePressed(QPoint, Qt::MouseButton, Qt::KeyboardModifiers) {}

void GraphicsRenderer::mouseReleased(QPoint, Qt::MouseButton, Qt::KeyboardModifiers) {}

void GraphicsRenderer::mouseMoved(QPoint, Qt::KeyboardModifiers) {}

}  // namespace Zorv
