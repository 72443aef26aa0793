#include "image/tools/pickertool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imagepalette.h"

#include <QCursor>
#include <QPainter>

#include <algorithm>

namespace Zorv {

PickerTool::PickerTool(ImageCanvas* canvas, QObject* parent) : ImageTool(canvas, nullptr, parent) {}

void PickerTool::mousePressed(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint screen,
                              QPoint image, QCursor&)
{
    if (beginPress(button, screen, image)) {
        m_button = button;
    }
}

void PickerTool::mouseReleased(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint, QPoint image,
                               QCursor&)
{
    setLastPos(image);
    const ImageLayer* layer = paintedLayer();
    if (endPress(button) && layer && layer->image().rect().contains(image)) {
        pick(canvas()->painter());
    }
}

void PickerTool::mouseMoved(Qt::KeyboardModifiers, QPoint, QPoint image, QCursor& cursor)
{
    cursor = Qt::BlankCursor;
    setLastPos(image);
}

void PickerTool::pick(ImagePainter* painter)
{
    const unsigned char index = painter->color(lastPos());
    if (m_button == Qt::LeftButton) {
        canvas()->palette()->setForeground(index);
    } else if (m_button == Qt::RightButton) {
        canvas()->palette()->setBackground(index);
    }
}

void PickerTool::renderCursor(QPainter& painter, QPoint pos, double zoom)
{
    // A cross of four arms that leaves the pixel itself visible. Black next to white shows on any
    // background.
    const int gap = std::max(1, qRound(zoom / 2));
    const int arm = 6;
    for (const int aside : {0, 1}) {
        setColor(painter, aside ? Qt::black : Qt::white);
        drawPlainLine(painter, pos + QPoint(-gap - arm, aside), {arm, 1});
        drawPlainLine(painter, pos + QPoint(gap + 1, aside), {arm, 1});
        drawPlainLine(painter, pos + QPoint(aside, -gap - arm), {1, arm});
        drawPlainLine(painter, pos + QPoint(aside, gap + 1), {1, arm});
    }
}

}  // namespace Zorv
