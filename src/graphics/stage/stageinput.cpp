#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"

#include <QCursor>

namespace Zorv {

namespace {

constexpr Qt::CursorShape s_cursors[] = {
    Qt::OpenHandCursor,   // stage
    Qt::SizeAllCursor,    // sprite
    Qt::SizeAllCursor,    // main cross
    Qt::SizeAllCursor,    // secondary cross
    Qt::SizeAllCursor,    // extra cross
    Qt::SizeVerCursor,    // horizontal guide
    Qt::SizeHorCursor,    // vertical guide
    Qt::SizeAllCursor,    // box
    Qt::SizeFDiagCursor,  // sizers: top left
    Qt::SizeVerCursor,    // top
    Qt::SizeHorCursor,    // left
    Qt::SizeBDiagCursor,  // top right
    Qt::SizeBDiagCursor,  // bottom left
    Qt::SizeVerCursor,    // bottom
    Qt::SizeFDiagCursor,  // bottom right
    Qt::SizeHorCursor,    // right
};
constexpr int ElementCount = sizeof s_cursors / sizeof *s_cursors;

constexpr int WideStep = 10;  // with the shift key

/// The step of an arrow key; (0,0) for other keys.
QPoint stepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

}  // namespace

GraphicsRenderer::Input::Input(GraphicsRenderer* stage) : m_stage(stage)
{
    emit stage->inputComes();
}

GraphicsRenderer::Input::~Input()
{
    emit m_stage->inputTaken();
}

void GraphicsRendererPrivate::setCursor(const QCursor& cursor)
{
    if (RenderWidget* widget = q->widget()) {
        widget->setCursor(cursor);
    }
}

/// Ends a drag in progress before a new mode or press. What was dragged stays where it is, as if
/// the button had been released. An unfinished box is dropped.
void GraphicsRendererPrivate::finishPress()
{
    const bool isDragging = leftButtonDown && moved;
    leftButtonDown = false;
    moved = false;
    if (clickMode == GraphicsRenderer::DrawContactBoxMode) {
        dropDrawnBox();
    } else if (isDragging) {
        releaseDrag();
    }
}

/// Also forgets the last click, so that the next press starts at the top.
void GraphicsRendererPrivate::leaveMode()
{
    finishPress();
    clicked = {};
}

void GraphicsRenderer::setPositioningMode()
{
    d->leaveMode();
    ContactBoxes& boxes = d->contactBoxes[size_t(d->boxListIndex)];
    if (d->clickMode == DrawContactBoxMode && boxes.items.size() > d->boxCountAtDrawStart) {
        d->deselectBoxes();
        ContactItem& drawn = boxes.items.last();
        drawn.selected = !boxes.locked;
        d->hasSelection = drawn.selected;
        if (drawn.selected) {
            d->updateBoxSelection(drawn.rect());
        }
        update();
    }
    d->clickMode = PositioningMode;
    d->tellSelection();
}

void GraphicsRenderer::setDrawContactBoxMode(ContactBoxCode::BoxType type)
{
    if (!isBoxType(type)) {
        return;
    }
    d->leaveMode();
    d->clickMode = DrawContactBoxMode;
    d->boxListIndex = type - 1;
    d->boxCountAtDrawStart = d->contactBoxes[size_t(d->boxListIndex)].items.size();
    deselectContactBoxes();
}

void GraphicsRenderer::setCaptureMode()
{
    d->leaveMode();
    if (d->clickMode == DrawContactBoxMode && d->selectionRect.width() > 0) {
        update();
    }
    d->clickMode = CaptureMode;
    deselectContactBoxes();
}

GraphicsRenderer::ClickMode GraphicsRenderer::clickMode() const
{
    return ClickMode(d->clickMode);
}

// A query must not change what a drag in progress holds.
GraphicsRenderer::RenderElement GraphicsRenderer::hitTest(QPoint pos)
{
    const int item = d->itemIndex;
    const int list = d->boxListIndex;
    const RenderElement found = d->hitTest(pos);
    if (d->leftButtonDown) {
        d->itemIndex = item;
        d->boxListIndex = list;
    }
    return found;
}

QCursor GraphicsRenderer::elementCursor(RenderElement element) const
{
    if (element < 0 || element >= ElementCount) {
        return Qt::ArrowCursor;
    }
    if (element == StageElement && d->clickMode == DrawContactBoxMode) {
        return Qt::CrossCursor;
    }
    if (element == StageElement && d->leftButtonDown) {
        return Qt::ClosedHandCursor;
    }
    if (element == SpriteElement && d->clickMode == CaptureMode) {
        return Qt::CrossCursor;
    }
    return s_cursors[element];
}

void GraphicsRenderer::keyPressed(int key, Qt::KeyboardModifiers modifiers)
{
    const Input input(this);
    if (key == Qt::Key_Control) {
        d->setCursor(Qt::OpenHandCursor);
    }
    const bool isWide = modifiers == Qt::ShiftModifier;
    if (modifiers != Qt::NoModifier && !isWide) {
        return;
    }
    if (key == Qt::Key_Delete && !isWide) {
        removeSelectedContactBoxes();
        return;
    }
    const QPoint step = stepOf(key);
    if (step.isNull()) {
        return;
    }
    moveSelectedContactBoxes(isWide ? step * WideStep : step);
    emit itemReleased(ContactBoxesType, nullptr, QPoint());
    update();
}

void GraphicsRenderer::keyReleased(int key, Qt::KeyboardModifiers)
{
    RenderWidget* view = widget();
    if (key == Qt::Key_Control && view) {
        d->setCursor(elementCursor(hitTest(view->mapFromGlobal(QCursor::pos()))));
    }
}

}  // namespace Zorv
