#include "image/imagerenderer_p.h"
#include "image/tools/arrowstep_p.h"

#include <algorithm>
#include <cmath>

// The keyboard cell lets a person use tools without a mouse. It is a pixel of the canvas, moved by
// arrow keys; the tool gets the same press, move and release as from a mouse in the middle of that
// pixel. A mouse press or move hides the cell again.

namespace Zorv {

namespace {

QPoint within(const QPoint& pixel, const QSize& size)
{
    return {std::clamp(pixel.x(), 0, size.width() - 1),
            std::clamp(pixel.y(), 0, size.height() - 1)};
}

/// How far a span must move to lie within 0 to `room`. If it is too long, its start moves to 0.
int wayInto(int begin, int end, int room)
{
    return begin < 0 || end - begin > room ? -begin : std::min(room - end, 0);
}

}  // namespace

void ImageRenderer::keyPressed(int key, Qt::KeyboardModifiers modifiers)
{
    if (d->moveAxisBy(key, modifiers)) {
        update();
    } else if (d->current && d->current->keyPressed(modifiers, key)) {
        update();
    } else if (key == Qt::Key_Space) {
        d->isSpaceHeld = true;
        d->moveAgain();
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        d->clickCell(modifiers);
    } else {
        d->moveCell(key, modifiers);
    }
}

void ImageRenderer::keyReleased(int key, Qt::KeyboardModifiers)
{
    if (key == Qt::Key_Space) {
        d->isSpaceHeld = false;
        d->moveAgain();
    } else if (key == Qt::Key_Shift) {
        d->endDrag();
    }
}

ImageView ImageRendererPrivate::cellView() const
{
    return views.showZoomed ? ImageView::Zoomed : ImageView::Original;
}

QPoint ImageRendererPrivate::cellPlace(const QPoint& pixel) const
{
    return savePosition(place().toWidget(QPointF(pixel) + QPointF(0.5, 0.5), cellView()));
}

/// The cell starts where the pointer was.
void ImageRendererPrivate::showCell()
{
    if (isCellShown) {
        return;
    }
    const QPoint start = toldPixel.value_or(place().center());
    cell = within(start, canvas.size());
    isCellShown = true;
}

void ImageRendererPrivate::hideCell()
{
    if (isCellShown && !isCellDragged) {
        isCellShown = false;
        q->update();
    }
}

void ImageRendererPrivate::moveCell(int key, Qt::KeyboardModifiers modifiers)
{
    const QPoint step = arrowStep(key);
    const bool isMouseDown = pressed && !isCellDragged;
    if (step.isNull() || canvas.size().isEmpty() || isMouseDown) {
        return;
    }
    showCell();
    // Shift means "drag" here, so the tool must not see it.
    const bool drags = modifiers.testFlag(Qt::ShiftModifier) && current;
    if (drags && !isCellDragged) {
        pressView = cellView();
        press(cellPlace(cell), toolPixel(cell), Qt::LeftButton, Qt::NoModifier);
        isCellDragged = true;
    } else if (!drags) {
        endDrag();
    }
    cell = within(cell + step, canvas.size());
    bringIntoView(cell);
    if (isCellDragged) {
        move(cellPlace(cell), toolPixel(cell), Qt::NoModifier);
    }
    tell(cell);
    q->update();
}

void ImageRendererPrivate::endDrag()
{
    if (isCellDragged) {
        isCellDragged = false;
        release(cellPlace(cell), toolPixel(cell), Qt::LeftButton, Qt::NoModifier);
        q->update();
    }
}

void ImageRendererPrivate::clickCell(Qt::KeyboardModifiers modifiers)
{
    if (canvas.size().isEmpty() || !current) {
        return;
    }
    losePress();
    showCell();
    bringIntoView(cell);
    pressView = cellView();
    const auto button = modifiers.testFlag(Qt::AltModifier) ? Qt::RightButton : Qt::LeftButton;
    const QPoint pos = cellPlace(cell);
    press(pos, toolPixel(cell), button, modifiers);
    release(pos, toolPixel(cell), button, modifiers);
    tell(cell);
    q->update();
}

void ImageRendererPrivate::bringIntoView(const QPoint& pixel)
{
    const ImagePlace now = place();
    const double scale = now.scale(cellView());
    const QPointF corner = QPointF(pixel) * scale + now.rect(cellView()).topLeft();
    const int side = std::max(int(std::ceil(scale)), 1);
    const QRect rect(savePosition(corner), QSize(side, side));
    const QPoint way(wayInto(rect.left(), rect.left() + side, views.splitX()),
                     wayInto(rect.top(), rect.top() + side, views.widget.height()));
    if (!way.isNull()) {
        canvas.setPosition(canvas.position() + way);
    }
}

}  // namespace Zorv
