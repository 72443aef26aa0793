#include "graphics/renderwidget.h"

#include "graphics/renderer.h"
#include "graphics/renderwidget_p.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLPaintDevice>
#include <QPainter>
#include <QPointer>
#include <QTabletEvent>
#include <QWheelEvent>

#include <utility>

namespace Zorv {

RenderWidget::RenderWidget(QWidget* parent)
    : QOpenGLWidget(parent), d(std::make_unique<RenderWidgetPrivate>())
{
    setAutoFillBackground(false);
    setMouseTracking(true);
    setTabletTracking(true);
}

RenderWidget::~RenderWidget()
{
    if (d->renderer) {
        d->renderer->m_widget = nullptr;
    }
    if (QOpenGLContext* const own = context()) {
        own->disconnect(this);
        freePrograms();
    }
}

Renderer* RenderWidget::renderer() const
{
    return d->renderer;
}

void RenderWidget::setRenderer(Renderer* renderer)
{
    const QPointer<RenderWidget> self = this;
    releaseButtons();
    if (!self) {
        return;
    }
    if (d->renderer) {
        d->renderer->m_widget = nullptr;
    }
    d->renderer = renderer;
    if (!renderer) {
        return;
    }
    if (renderer->m_widget) {
        renderer->m_widget->setRenderer(nullptr);
    }
    renderer->m_widget = this;
    makeCurrent();
    if (d->drawing.hasPrograms()) {
        renderer->initializeOpenGLFunctions();
    }
    renderer->sizeChanged(width(), height());
}

/// Otherwise a drag would continue when the renderer is attached again, and its result would never
/// be reported.
void RenderWidget::releaseButtons()
{
    const QPointer<RenderWidget> self = this;
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (self && d->renderer && d->pressed.testFlag(button)) {
            d->pressed.setFlag(button, false);
            d->renderer->mouseReleased(d->pointer, button, Qt::NoModifier);
        }
    }
    if (self) {
        d->pressed = {};
    }
}

void RenderWidget::setCustomPixelShader(const char* indexedSource, const char* rgbaSource)
{
    if (!d->drawing.hasPrograms()) {
        return;
    }
    const bool isCurrent = QOpenGLContext::currentContext() == context();
    if (!isCurrent) {
        makeCurrent();
    }
    setupShader(d->drawing.indexed, indexedSource, s_indexedShader);
    setupShader(d->drawing.rgba, rgbaSource, s_rgbaShader);
    if (!isCurrent) {
        doneCurrent();
    }
}

void RenderWidget::setColorSight(const ColorSight& sight)
{
    if (d->sight != sight) {
        d->sight = sight;
        update();
    }
}

void RenderWidget::initializeGL()
{
    QOpenGLFunctions& gl = *context()->functions();
    gl.glClearColor(1, 1, 1, 1);
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_STENCIL_TEST);
    // A widget moved to a window with another context gets a new context itself.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &RenderWidget::freePrograms);
    d->drawing.makePrograms(this);
    setCustomPixelShader(nullptr, nullptr);
    if (d->renderer) {
        d->renderer->initializeOpenGLFunctions();
    }
    emit initialize();
}

void RenderWidget::freePrograms()
{
    makeCurrent();
    d->drawing.deletePrograms();
    d->sightPass.free(*context()->functions());
    doneCurrent();
}

void RenderWidget::resizeGL(int width, int height)
{
    if (d->renderer) {
        d->renderer->sizeChanged(width, height);
    }
    d->drawing.projection.setToIdentity();
    d->drawing.projection.ortho(QRect(0, 0, width, height));
}

void RenderWidget::paintGL()
{
    QOpenGLFunctions& gl = *context()->functions();
    if (d->renderer) {
        const QColor color = d->renderer->clearColor();
        gl.glClearColor(float(color.redF()), float(color.greenF()), float(color.blueF()), 1.0F);
    }
    gl.glClear(GL_COLOR_BUFFER_BIT);
    if (d->renderer) {
        // Not a painter on the widget: during `grab()` that would paint to another target.
        QOpenGLPaintDevice frame(size() * devicePixelRatioF());
        frame.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&frame);
        initPainter(&painter);
        d->renderer->render(painter);
    }
    if (d->sight) {
        d->sightPass.apply(gl, size() * devicePixelRatioF(), *d->sight);
    }
    // Force alpha to 1. Blending leaves translucent pixels, and a screenshot of the window would
    // show what is behind it.
    gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_TRUE);
    gl.glClear(GL_COLOR_BUFFER_BIT);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
}

void RenderWidget::keyPressEvent(QKeyEvent* event)
{
    QOpenGLWidget::keyPressEvent(event);
    if (d->renderer) {
        d->renderer->keyPressed(event->key(), event->modifiers());
    }
}

void RenderWidget::keyReleaseEvent(QKeyEvent* event)
{
    QOpenGLWidget::keyReleaseEvent(event);
    // An auto-repeating key is still held.
    if (d->renderer && !event->isAutoRepeat()) {
        d->renderer->keyReleased(event->key(), event->modifiers());
    }
}

void RenderWidget::mousePressEvent(QMouseEvent* event)
{
    QOpenGLWidget::mousePressEvent(event);
    passPress(event->localPos(), event->button(), event->modifiers());
}

void RenderWidget::mouseReleaseEvent(QMouseEvent* event)
{
    QOpenGLWidget::mouseReleaseEvent(event);
    passRelease(event->localPos(), event->button(), event->modifiers());
}

void RenderWidget::mouseMoveEvent(QMouseEvent* event)
{
    QOpenGLWidget::mouseMoveEvent(event);
    passMove(event->localPos(), event->modifiers());
}

void RenderWidget::passPress(QPointF pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    if (d->renderer) {
        d->pressed.setFlag(button);
        d->pointer = pos.toPoint();
        d->renderer->pointerMoved(pos);
        d->renderer->mousePressed(d->pointer, button, modifiers);
    }
}

void RenderWidget::passRelease(QPointF pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    if (d->renderer) {
        d->pressed.setFlag(button, false);
        d->renderer->pointerMoved(pos);
        d->renderer->mouseReleased(pos.toPoint(), button, modifiers);
    }
}

void RenderWidget::passMove(QPointF pos, Qt::KeyboardModifiers modifiers)
{
    if (d->renderer) {
        d->pointer = pos.toPoint();
        d->renderer->pointerMoved(pos);
        d->renderer->mouseMoved(d->pointer, modifiers);
    }
}

// Uses the larger of the two directions: with Alt held a wheel scrolls sideways.
void RenderWidget::wheelEvent(QWheelEvent* event)
{
    QOpenGLWidget::wheelEvent(event);
    if (d->renderer) {
        const QPoint angle = event->angleDelta();
        d->renderer->pointerMoved(event->position());
        d->renderer->mouseWheel(qAbs(angle.x()) > qAbs(angle.y()) ? angle.x() : angle.y());
    }
}

// An event that is not accepted would arrive again as a mouse event.
void RenderWidget::tabletEvent(QTabletEvent* event)
{
    QOpenGLWidget::tabletEvent(event);
    event->accept();
    if (event->type() == QEvent::TabletPress && d->pen == Qt::NoButton) {
        d->pen = event->button() == Qt::NoButton ? Qt::LeftButton : event->button();
        passPress(event->posF(), d->pen, event->modifiers());
    } else if (event->type() == QEvent::TabletRelease && event->buttons() == Qt::NoButton) {
        if (const auto button = std::exchange(d->pen, Qt::NoButton)) {
            passRelease(event->posF(), button, event->modifiers());
        }
    } else if (event->type() == QEvent::TabletMove) {
        passMove(event->posF(), event->modifiers());
    }
}

void RenderWidget::focusOutEvent(QFocusEvent* event)
{
    QOpenGLWidget::focusOutEvent(event);
    if (d->renderer) {
        d->renderer->focusLost();
    }
}

// A pen does not grab the mouse, so a stroke continues outside the widget.
void RenderWidget::leaveEvent(QEvent* event)
{
    QOpenGLWidget::leaveEvent(event);
    if (d->renderer && d->pen == Qt::NoButton) {
        d->renderer->mouseLeft();
    }
}

bool RenderWidget::event(QEvent* event)
{
    const QPointer<RenderWidget> self = this;
    const QEvent::Type type = event->type();
    const bool isUsed = QOpenGLWidget::event(event);
    const bool loses = type == QEvent::Hide || type == QEvent::UngrabMouse ||
                       (type == QEvent::EnabledChange && self && !isEnabled());
    if (self && loses && d->renderer && d->pressed) {
        d->pen = Qt::NoButton;
        d->renderer->grabLost();
    }
    return isUsed;
}

}  // namespace Zorv
