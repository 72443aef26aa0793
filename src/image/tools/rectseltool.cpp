#include "image/tools/rectseltool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageselection.h"

#include <QCursor>
#include <QPainter>

#include <algorithm>

namespace Zorv {

RectSelTool::RectSelTool(ImageCanvas* canvas, QObject* parent) : ImageTool(canvas, nullptr, parent)
{
}

void RectSelTool::mousePressed(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint screen,
                               QPoint image, QCursor&)
{
    if (beginPress(button, screen, image)) {
        m_first = image;
        m_isMoved = false;
    }
}

void RectSelTool::mouseMoved(Qt::KeyboardModifiers, QPoint, QPoint image, QCursor& cursor)
{
    cursor = Qt::CrossCursor;
    setLastPos(image);
    m_isMoved = m_isMoved || image != m_first;
}

void RectSelTool::mouseReleased(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint, QPoint image,
                                QCursor&)
{
    setLastPos(image);
    m_isMoved = m_isMoved || image != m_first;
    const QRect chosen = m_isMoved ? rect() : QRect(QPoint(), canvas()->size());
    if (!endPress(button) || canvas()->size().isEmpty()) {
        return;
    }
    ImageSelection selection;
    selection.setSize(canvas()->size());
    selection.fromRect(chosen);
    canvas()->setSelection(selection.mask());
    emit layerChanged();
}

QRect RectSelTool::rect() const
{
    const QPoint corner(std::min(m_first.x(), lastPos().x()), std::min(m_first.y(), lastPos().y()));
    const QPoint other(std::max(m_first.x(), lastPos().x()), std::max(m_first.y(), lastPos().y()));
    return isPressed() ? QRect(corner, other) & QRect(QPoint(), canvas()->size()) : QRect();
}

void RectSelTool::renderCursor(QPainter& painter, QPoint pos, double zoom)
{
    if (!isPressed()) {
        return;
    }
    // From the pixel under the mouse, which is included, to the other end of the rectangle.
    const QPoint span = lastPos() - m_first;
    const auto length = [zoom](int pixels) { return qRound((std::abs(pixels) + 1) * zoom); };
    const QSize size(length(span.x()), length(span.y()));
    const auto begin = [zoom](int middle, int way) {
        return middle - int(zoom / 2) - (way > 0 ? qRound(way * zoom) : 0);
    };
    const QPoint corner(begin(pos.x(), span.x()), begin(pos.y(), span.y()));
    setColor(painter, Qt::white);
    drawPlainRect(painter, {corner, size});
    setColor(painter, Qt::black);
    drawPlainRect(painter, QRect(corner, size).adjusted(-1, -1, 1, 1));
}

}  // namespace Zorv
