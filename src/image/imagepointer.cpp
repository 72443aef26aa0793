// A press belongs to the tool and the view in which it began until it ends, whatever keys and
// pointer do meanwhile. So a tool sees each press exactly once, and its end exactly once.

#include "graphics/renderwidget.h"
#include "image/canvas/imageundostack.h"
#include "image/imagerenderer_p.h"

#include <utility>

namespace Zorv {

namespace {

const int WheelStep = 120;

}  // namespace

template <class Call>
void ImageRendererPrivate::withCursor(Call call)
{
    QCursor cursor = q->widget() ? q->widget()->cursor() : QCursor();
    call(cursor);
    setCursor(cursor);
}

void ImageRendererPrivate::setCursor(const QCursor& cursor)
{
    RenderWidget* const widget = q->widget();
    if (widget && widget->cursor() != cursor) {
        widget->setCursor(cursor);
    }
}

void ImageRendererPrivate::setPointer(QPoint pos)
{
    mousePos = pos;
    isOutside = false;
    if (exact && exact->toPoint() != pos) {
        exact.reset();
    }
}

QPointF ImageRendererPrivate::exactPlace(QPoint pos) const
{
    if (!exact) {
        return pos;
    }
    const double ratio = q->widget() ? q->widget()->devicePixelRatioF() : 1;
    const double half = (0.5 - DrawingShift) / ratio;
    return *exact + QPointF(half, half);
}

QPoint ImageRendererPrivate::toolPixel(const QPointF& pos, ImageView view) const
{
    QPointF point = place().toCanvas(pos, view);
    if (current && q->option(ImageRenderer::CenteredBrush)) {
        const double half = (current->brushWidth() - 1) / 2.0;
        point -= QPointF(half, half);
    }
    return pixelOf(point);
}

QPoint ImageRendererPrivate::toolPixel(QPoint pixel) const
{
    const bool isCentered = current && q->option(ImageRenderer::CenteredBrush);
    const int half = isCentered ? (current->brushWidth() - 1) / 2 : 0;
    return pixel - QPoint(half, half);
}

bool ImageRendererPrivate::movesPicture(Qt::KeyboardModifiers modifiers) const
{
    return isSpaceHeld || isPanning || modifiers.testFlag(Qt::ControlModifier);
}

ImageTool* ImageRendererPrivate::toolFor(Qt::KeyboardModifiers modifiers) const
{
    return movesPicture(modifiers) && current ? tools[ImageTool::CanvasMoveTool] : current;
}

void ImageRendererPrivate::press(QPoint pos, QPoint pixel, Qt::MouseButton button,
                                 Qt::KeyboardModifiers modifiers)
{
    if (!pressed) {
        pressTool = toolFor(modifiers);
    }
    pressed |= button;
    if (pressTool) {
        withCursor([&](QCursor& cursor) {
            pressTool->mousePressed(modifiers, button, pos, pixel, cursor);
        });
    }
}

void ImageRendererPrivate::release(QPoint pos, QPoint pixel, Qt::MouseButton button,
                                   Qt::KeyboardModifiers modifiers)
{
    pressed.setFlag(button, false);
    ImageTool* const tool = pressed ? pressTool : std::exchange(pressTool, nullptr);
    if (tool) {
        withCursor(
            [&](QCursor& cursor) { tool->mouseReleased(modifiers, button, pos, pixel, cursor); });
    }
}

void ImageRendererPrivate::move(QPoint pos, QPoint pixel, Qt::KeyboardModifiers modifiers)
{
    if (ImageTool* const tool = pressed ? pressTool : toolFor(modifiers)) {
        withCursor([&](QCursor& cursor) { tool->mouseMoved(modifiers, pos, pixel, cursor); });
    }
}

ImageRendererPrivate::Grip ImageRendererPrivate::gripAt(const QPointF& pos,
                                                        Qt::KeyboardModifiers modifiers) const
{
    if (movesPicture(modifiers)) {
        return NoGrip;
    }
    const QPoint pixel = pixelOf(pos);
    const ImageView view = place().viewAt(pos);
    for (const Grip each : {UprightGrip, LevelGrip}) {
        if (gripRect(each, view).contains(pixel)) {
            return each;
        }
    }
    return axisRect(view).contains(pixel) ? AxisGrip : NoGrip;
}

void ImageRendererPrivate::takeGrip(const QPointF& pos, Qt::KeyboardModifiers modifiers)
{
    grip = gripAt(pos, modifiers);
    if (grip == AxisGrip) {
        canvas.endStroke();
        canvas.undoStack()->seal();
        axisFromPointer = canvas.axis() - place().toCanvas(pos, pressView);
    }
}

void ImageRendererPrivate::dragGrip(const QPointF& pos)
{
    grip == AxisGrip ? dragAxis(pos) : dragSymmetry(pos);
}

void ImageRendererPrivate::showGrip(Grip under)
{
    setCursor(under == AxisGrip      ? Qt::SizeAllCursor
              : under == UprightGrip ? Qt::SplitHCursor
                                     : Qt::SplitVCursor);
}

void ImageRendererPrivate::moveAgain()
{
    if (!isOutside && !pressed && !isCellShown && q->widget()) {
        q->mouseMoved(mousePos, Qt::NoModifier);
    }
}

void ImageRendererPrivate::losePress()
{
    grip = NoGrip;
    isCellDragged = false;
    pressed = {};
    if (ImageTool* const tool = std::exchange(pressTool, nullptr)) {
        tool->mouseLost();
        q->update();
    }
}

void ImageRenderer::pointerMoved(QPointF pos)
{
    d->exact = pos;
}

void ImageRenderer::mousePressed(QPoint pos, Qt::MouseButton button,
                                 Qt::KeyboardModifiers modifiers)
{
    if (widget()) {
        widget()->setFocus(Qt::MouseFocusReason);
    }
    d->setPointer(pos);
    // If the button is already down, its release went to another window and was missed.
    if (d->isCellDragged || d->pressed.testFlag(button)) {
        d->losePress();
    }
    d->hideCell();
    const QPointF place = d->exactPlace(pos);
    if (!d->pressed) {
        d->pressView = d->place().viewAt(pos);
        d->takeGrip(place, modifiers);
    }
    if (d->grip != ImageRendererPrivate::NoGrip) {
        d->pressed |= button;
        return;
    }
    d->press(pos, d->toolPixel(place, d->pressView), button, modifiers);
    update();
}

void ImageRenderer::mouseReleased(QPoint pos, Qt::MouseButton button,
                                  Qt::KeyboardModifiers modifiers)
{
    d->setPointer(pos);
    if (d->isCellDragged || !d->pressed.testFlag(button)) {
        return;
    }
    const bool wasPanned = d->pressTool == d->tools[ImageTool::CanvasMoveTool];
    d->release(pos, d->toolPixel(d->exactPlace(pos), d->pressView), button, modifiers);
    if (!d->pressed) {
        d->grip = ImageRendererPrivate::NoGrip;
        if (wasPanned) {
            mouseMoved(pos, modifiers);
        }
    }
    update();
}

void ImageRenderer::mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers)
{
    // Window systems also send move events when the pointer has not moved.
    if (d->isCellDragged || (d->isCellShown && pos == d->mousePos)) {
        return;
    }
    d->setPointer(pos);
    d->hideCell();
    const QPointF place = d->exactPlace(pos);
    const ImageView view = d->pressed ? d->pressView : d->place().viewAt(pos);
    if (d->grip != ImageRendererPrivate::NoGrip) {
        d->dragGrip(place);
    } else if (const auto under =
                   d->pressed ? ImageRendererPrivate::NoGrip : d->gripAt(place, modifiers)) {
        d->showGrip(under);
    } else {
        d->move(pos, d->toolPixel(place, view), modifiers);
    }
    d->tell(pixelOf(d->place().toCanvas(place, view)));
    update();
}

void ImageRenderer::mouseWheel(int delta)
{
    d->wheelRest += delta;
    const auto steps = double(d->wheelRest / WheelStep);
    d->wheelRest %= WheelStep;
    if (steps == 0) {
        return;
    }
    const double zoom = d->canvas.zoomLevel();
    const double newZoom = steps > 0 ? zoom * (steps + 1) : zoom / (1 - steps);
    const QPointF place = d->exact.value_or(d->mousePos);
    const bool isElsewhere = d->isOutside && !d->exact;
    if (isElsewhere || d->views.viewAt(place) == ImageView::Original) {
        d->zoomAboutMiddle(newZoom);
    } else {
        d->zoomTo(newZoom, place);
    }
}

void ImageRenderer::focusLost()
{
    d->isSpaceHeld = false;
    d->losePress();
    d->hideCell();
}

void ImageRenderer::mouseLeft()
{
    d->losePress();
    d->isOutside = true;
    d->exact.reset();
    if (d->current) {
        d->current->mouseLeft();
    }
    if (!d->isCellShown) {
        d->toldPixel.reset();
        emit cursorLeft();
    }
    update();
}

void ImageRenderer::grabLost()
{
    d->losePress();
}

void ImageRendererPrivate::tell(const QPoint& pixel)
{
    int index = -1;
    QRgb color = 0;
    const QImage shownPixel = canvas.mergePart(QRect(pixel, QSize(1, 1)));
    if (!shownPixel.isNull()) {
        color = shownPixel.pixel(0, 0);
        index = canvas.format() == ImageCanvas::IndexedFormat ? shownPixel.pixelIndex(0, 0) : -1;
    }
    const bool isElsewhere = toldPixel != pixel;
    if (!isElsewhere && index == toldIndex && color == toldColor) {
        return;
    }
    toldPixel = pixel;
    toldIndex = index;
    toldColor = color;
    if (isElsewhere) {
        emit q->cursorChanged(pixel);
    }
    emit q->pos(pixel, index, color);
}

// Reports the pixel again, because the picture may have moved under the pointer.
void ImageRendererPrivate::tellAgain()
{
    if (isCellShown) {
        tell(cell);
    } else if (toldPixel && !isOutside) {
        const ImageView view = pressed ? pressView : place().viewAt(mousePos);
        tell(pixelOf(place().toCanvas(exactPlace(mousePos), view)));
    }
}

}  // namespace Zorv
