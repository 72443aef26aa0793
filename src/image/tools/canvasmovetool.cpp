#include "image/tools/canvasmovetool.h"

#include "image/canvas/imagecanvas.h"

#include <QCursor>

namespace Zorv {

CanvasMoveTool::CanvasMoveTool(ImageCanvas* canvas, QObject* parent)
    : ImageTool(canvas, nullptr, parent)
{
}

void CanvasMoveTool::mousePressed(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint screen,
                                  QPoint image, QCursor& cursor)
{
    cursor = Qt::ClosedHandCursor;
    if (beginPress(button, screen, image)) {
        m_position = canvas()->position();
        m_shown = m_position;
    }
}

void CanvasMoveTool::mouseReleased(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint,
                                   QPoint image, QCursor& cursor)
{
    setLastPos(image);
    endPress(button);
    cursor = isPressed() ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
}

void CanvasMoveTool::mouseMoved(Qt::KeyboardModifiers, QPoint screen, QPoint image, QCursor& cursor)
{
    setLastPos(image);
    cursor = isPressed() ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
    if (isPressed()) {
        // The wheel may have zoomed about the mouse in the meantime, which moves the picture, too.
        m_position += canvas()->position() - m_shown;
        canvas()->setPosition(m_position + screen - pressPos());
        m_shown = canvas()->position();
    }
}

}  // namespace Zorv
