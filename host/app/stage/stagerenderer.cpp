#include "app/stage/stagerenderer.h"

#include "family/stage/placedpicture.h"

#include <zorv/core/interface.h>
#include <zorv/graphics/renderwidget.h>

#include <QMatrix4x4>
#include <QVariant>

namespace App {

namespace {

constexpr int WheelStep = 120;
constexpr int HighestByWheel = 9;  // higher levels only by keys

/// Values of the setting "zoom_center": the library's two modes, and a third one for the wheel.
constexpr int ZoomAboutPointer = 2;

int zoomCenter()
{
    return Zorv::Interface::instance()->option(QStringLiteral("zoom_center")).toInt();
}

/// Zooms around the middle of the widget. The library's own mode does not move what is attached to
/// the origin, which is everything on this stage.
class Zooming
{
public:
    explicit Zooming(StageRenderer* stage) : m_stage(stage), m_before(stage->zoom()) {}

    ~Zooming()
    {
        if (m_stage->widget() && zoomCenter() == StageRenderer::ZoomAboutCenter) {
            const QPoint middle = m_stage->widget()->rect().center();
            m_stage->setOrigin(middle +
                               (m_stage->origin() - middle) * (m_stage->zoom() / m_before));
        }
    }

private:
    Q_DISABLE_COPY(Zooming)
    StageRenderer* m_stage;
    float m_before;
};

}  // namespace

void StageRenderer::keyPressed(int key, Qt::KeyboardModifiers modifiers)
{
    // "+" needs Shift on many keyboards.
    const bool isPlain = !(modifiers & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    if (isPlain && takeKey(key)) {
        return;
    }
    GraphicsRenderer::keyPressed(key, modifiers & ~Qt::KeypadModifier);
}

bool StageRenderer::takeKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        addZoom();
        return true;
    case Qt::Key_Minus:
        subZoom();
        return true;
    case Qt::Key_0:
        zoomActual();
        return true;
    case Qt::Key_Space:
        emit playKeyPressed();
        return true;
    case Qt::Key_PageUp:
        emit frameKeyPressed(-1);
        return true;
    case Qt::Key_PageDown:
        emit frameKeyPressed(1);
        return true;
    case Qt::Key_Escape:
        emit escapePressed(clickMode() == PositioningMode);
        return true;
    default:
        return false;
    }
}

void StageRenderer::mousePressed(QPoint pos, Qt::MouseButton button,
                                 Qt::KeyboardModifiers modifiers)
{
    m_pointer = pos;
    m_isHeld = m_isHeld || button == Qt::LeftButton;
    GraphicsRenderer::mousePressed(pos, button, modifiers);
}

void StageRenderer::mouseReleased(QPoint pos, Qt::MouseButton button,
                                  Qt::KeyboardModifiers modifiers)
{
    m_pointer = pos;
    // Any other button would end the drag, and the result would not reach the text.
    const bool endsDrawing = button == Qt::RightButton && clickMode() == DrawContactBoxMode;
    if (m_isHeld && button != Qt::LeftButton && !endsDrawing) {
        return;
    }
    m_isHeld = false;
    GraphicsRenderer::mouseReleased(pos, button, modifiers);
}

void StageRenderer::mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers)
{
    m_pointer = pos;
    GraphicsRenderer::mouseMoved(pos, modifiers);
}

void StageRenderer::mouseWheel(int delta)
{
    // Touch pads and high-resolution wheels send parts of a step.
    m_turned += delta;
    const int steps = m_turned / WheelStep;
    m_turned %= WheelStep;
    const bool isFarther = steps < 0;
    if (!isFarther && (steps == 0 || zoomLevel() >= HighestByWheel)) {
        return;
    }
    if (zoomCenter() == ZoomAboutPointer) {
        turnAboutPointer(steps * WheelStep);
    } else {
        const Zooming zooming(this);
        GraphicsRenderer::mouseWheel(steps * WheelStep);
    }
}

/// Zooming in and out again returns to the same place: only the origin is rounded, never the point
/// under the pointer.
void StageRenderer::turnAboutPointer(int delta)
{
    if (m_held.pointer != m_pointer || m_held.origin != origin()) {
        m_held = {m_pointer, origin(), QPointF(m_pointer - origin()) / double(zoom())};
    }
    GraphicsRenderer::mouseWheel(delta);
    setOrigin(m_pointer - (m_held.model * double(zoom())).toPoint());
    m_held.origin = origin();
}

void StageRenderer::addZoom()
{
    const Zooming zooming(this);
    GraphicsRenderer::addZoom();
}

void StageRenderer::subZoom()
{
    const Zooming zooming(this);
    GraphicsRenderer::subZoom();
}

void StageRenderer::zoomActual()
{
    const Zooming zooming(this);
    GraphicsRenderer::zoomActual();
}

QMatrix4x4 StageRenderer::spriteMatrix(QPoint base, QPoint offset, QSize size, float rotation) const
{
    using Placed = Family::PlacedPicture;
    QMatrix4x4 hair;
    hair.translate(float(Placed::HairX) / Placed::HairParts,
                   float(Placed::HairY) / Placed::HairParts);
    return hair * GraphicsRenderer::spriteMatrix(base, offset, size, rotation);
}

}  // namespace App
