#include "graphics/renderwidget.h"

#include "graphics/renderer.h"
#include "graphics/renderwidget_p.h"

namespace Zorv {

RenderWidget::RenderWidget(QWidget* parent)
    : QOpenGLWidget(parent), d(std::make_unique<RenderWidgetPrivate>())
{
}

RenderWidget::~RenderWidget() = default;

Renderer* RenderWidget::renderer() const
{
    return d->renderer;
}

void RenderWidget::setRenderer(Renderer*) {}
void RenderWidget::setCustomPixelShader(const char*, const char*) {}
void RenderWidget::initializeGL() {}
void RenderWidget::resizeGL(int, int) {}
void RenderWidget::paintGL() {}

void RenderWidget::keyPressEvent(QKeyEvent* event)
{
    QOpenGLWidget::keyPressEvent(event);
}

void RenderWidget::keyReleaseEvent(QKeyEvent* event)
{
    QOpenGLWidget::keyReleaseEvent(event);
}

void RenderWidget::mousePressEvent(QMouseEvent* event)
{
    QOpenGLWidget::mousePressEvent(event);
}

void RenderWidget::mouseReleaseEvent(QMouseEvent* event)
{
    QOpenGLWidget::mouseReleaseEvent(event);
}

void RenderWidget::mouseMoveEvent(QMouseEvent* event)
{
    QOpenGLWidget::mouseMoveEvent(event);
}

void RenderWidget::wheelEvent(QWheelEvent* event)
{
    QOpenGLWidget::wheelEvent(event);
}

}  // namespace Zorv
