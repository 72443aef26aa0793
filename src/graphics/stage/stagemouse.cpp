#include "cache/sprite.h"
#include "cache/spriteprovider.h"
#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"

#include <QCursor>

#include <algorithm>

namespace Zorv {

namespace {

using Element = GraphicsRenderer::RenderElement;

bool isCross(Element element)
{
    return element >= GraphicsRenderer::MainCrossElement &&
           element <= GraphicsRenderer::ExtraCrossElement;
}

int crossOf(Element element)
{
    return element - GraphicsRenderer::MainCrossElement;
}

/// A sizer in the middle of a side moves only that side.
QPoint alongSizer(Element element, QPoint delta)
{
    switch (element) {
    case GraphicsRenderer::TopSizer:
    case GraphicsRenderer::BottomSizer:
        return {0, delta.y()};
    case GraphicsRenderer::LeftSizer:
    case GraphicsRenderer::RightSizer:
        return {delta.x(), 0};
    default:
        return delta;
    }
}

QPoint difference(QPoint a, QPoint b)
{
    return {stageInt(qint64(a.x()) - b.x()), stageInt(qint64(a.y()) - b.y())};
}

QPoint unzoomed(QPoint point, float zoom)
{
    return {stageInt(roundedInt(point.x() / double(zoom))),
            stageInt(roundedInt(point.y() / double(zoom)))};
}

/// The part of a movement that a mode allows.
QPoint movable(unsigned char mode, QPoint delta, QPoint modelDelta)
{
    const QPoint by = positionMode(mode) == AbsoluteAnchor ? delta : modelDelta;
    return {isMovableX(mode) ? by.x() : 0, isMovableY(mode) ? by.y() : 0};
}

int unscaled(int length, double scale)
{
    return scale == 0 ? 0 : stageInt(truncatedInt(length / scale));
}

}  // namespace

void GraphicsRenderer::mousePressed(QPoint pos, Qt::MouseButton button,
                                    Qt::KeyboardModifiers modifiers)
{
    const Input input(this);
    if (button != Qt::LeftButton) {
        if (!d->leftButtonDown) {
            d->element = d->hitTest(pos);
        }
        return;
    }
    if (RenderWidget* view = widget()) {
        view->setFocus();
    }
    d->finishPress();  // the release may have been lost
    if (!(modifiers & Qt::ControlModifier) &&
        (d->clickMode != PositioningMode || d->hitTest(pos) != StageElement)) {
        emit aboutToGrab();
    }
    d->pressed = {};
    d->leftButtonDown = true;
    d->lastMousePos = pos;
    if (d->clickMode == DrawContactBoxMode) {
        d->pressInDrawMode(pos);
    } else if (modifiers & Qt::ControlModifier) {
        d->element = StageElement;
    } else {
        d->pressInOtherModes(pos, modifiers);
    }
    d->tellSelection();
}

void GraphicsRendererPrivate::pressInDrawMode(QPoint pos)
{
    unselectBoxes();
    element = GraphicsRenderer::BottomRightSizer;
    const int grid = zoom > 1 ? int(zoom) : 1;
    const QPoint snapped(pos.x() - pos.x() % grid, pos.y() - pos.y() % grid);
    const QPoint corner = unzoomed(difference(snapped, anchorOf(contactMode, contactParent)), zoom);
    ContactItem drawn;
    drawn.x = corner.x();
    drawn.y = corner.y();
    drawn.selected = true;
    QVector<ContactItem>& items = contactBoxes[size_t(boxListIndex)].items;
    itemIndex = items.size();
    items.append(drawn);
    selectionRect = QRect(corner, corner);
    selectionStart = selectionRect;
}

void GraphicsRendererPrivate::pressInOtherModes(QPoint pos, Qt::KeyboardModifiers modifiers)
{
    const StageHit hit = hitFor(pos, modifiers & Qt::AltModifier);
    pressOn(hit, modifiers & Qt::ShiftModifier);
    if (clickMode == GraphicsRenderer::CaptureMode &&
        element < GraphicsRenderer::ContactBoxElement) {
        pressInCaptureMode(pos);
    }
    const bool isClick = clickMode == GraphicsRenderer::PositioningMode &&
                         !(modifiers & Qt::ShiftModifier) && !isSizer(element);
    pressed = {isClick, pos, hit};
    // Alt has already picked the element below.
    if (modifiers & Qt::AltModifier) {
        clicked = {};
    }
    q->update();
}

void GraphicsRendererPrivate::pressOn(const StageHit& hit, bool isShift)
{
    element = take(hit);
    if (!isShift && !isSizer(element)) {
        deselectBoxes();
    }
    if (element == GraphicsRenderer::ContactBoxElement) {
        pressOnBox(isShift);
    } else if (isSizer(element)) {
        beginResize();
    }
}

/// A second click at the same place picks the element below the first one, and so on. This happens
/// on release, so that press and drag still move the element picked before.
void GraphicsRendererPrivate::endClick()
{
    if (!pressed.isValid) {
        clicked = {};
        return;
    }
    if (clicked.isAt(pressed.place)) {
        pressed.hit = hitFor(pressed.place, true);
        pressOn(pressed.hit, false);
        q->update();
    }
    clicked = pressed;
}

// `hasSelection` looks only at the list of the pressed box. A selection across two lists can
// therefore be without handles.
void GraphicsRendererPrivate::pressOnBox(bool toggles)
{
    QVector<ContactItem>& items = contactBoxes[size_t(boxListIndex)].items;
    ContactItem& item = items[itemIndex];
    item.selected = !(toggles && item.selected);
    hasSelection = std::any_of(items.cbegin(), items.cend(),
                               [](const ContactItem& each) { return each.selected; });
    if (!hasSelection) {
        resetSelectionRect();
    }
    updateBoxSelection(item.rect());
}

void GraphicsRendererPrivate::pressInCaptureMode(QPoint pos)
{
    if (element == GraphicsRenderer::SpriteElement) {
        const Sprite* sprite = spriteProvider ? spriteProvider->at(unsigned(itemIndex)) : nullptr;
        captureImage = sprite ? sprite->image() : QImage();
    }
    unsigned char index = 0;
    if (captureColor(pos, index)) {
        emit q->colorCaptured(index);
    }
}

void GraphicsRenderer::mouseMoved(QPoint pos, Qt::KeyboardModifiers modifiers)
{
    const Input input(this);
    const bool isBeneath = modifiers & Qt::AltModifier;
    const RenderElement under = d->leftButtonDown ? d->element : d->take(d->hitFor(pos, isBeneath));
    const bool wouldPan = modifiers == Qt::ControlModifier;
    d->setCursor(wouldPan ? QCursor(Qt::OpenHandCursor) : elementCursor(under));
    emit cursorChanged(unzoomed(difference(pos, origin()), d->zoom));
    if (!d->leftButtonDown) {
        return;
    }
    unsigned char index = 0;
    if (d->clickMode == CaptureMode && d->captureColor(pos, index)) {
        emit colorCaptured(index);
        return;
    }
    d->drag(pos);
}

// A drag moves by whole pixels of the game and keeps the remainder for the next move. Sizers
// measure from the press.
void GraphicsRendererPrivate::drag(QPoint pos)
{
    QPoint delta = alongSizer(element, difference(pos, lastMousePos));
    QPoint modelDelta = delta;
    if (element != GraphicsRenderer::StageElement) {
        modelDelta = unzoomed(delta, zoom);
        if (zoom > 1) {
            delta = scaled(modelDelta);
        }
    }
    if (!isSizer(element)) {
        lastMousePos = stageSum(lastMousePos, delta);
    }
    if (modelDelta.isNull()) {
        return;
    }
    moved = true;
    clicked = {};
    dragElement(delta, modelDelta);
    tellMovedBox();
    q->update();
}

void GraphicsRendererPrivate::dragElement(QPoint delta, QPoint modelDelta)
{
    switch (element) {
    case GraphicsRenderer::StageElement:
        q->setOrigin(stageSum(m_origin, delta));
        break;
    case GraphicsRenderer::SpriteElement:
        dragSprite(delta, modelDelta);
        break;
    case GraphicsRenderer::MainCrossElement:
    case GraphicsRenderer::SecondaryCrossElement:
    case GraphicsRenderer::ExtraCrossElement:
        dragCross(delta, modelDelta);
        break;
    case GraphicsRenderer::HorizontalGuide:
        guideLines = stageSum(guideLines, {0, modelDelta.y()});
        break;
    case GraphicsRenderer::VerticalGuide:
        guideLines = stageSum(guideLines, {modelDelta.x(), 0});
        break;
    default:
        sizeMoveContact(isSizer(element), element,
                        positionMode(contactMode) == AbsoluteAnchor ? delta : modelDelta);
        break;
    }
}

void GraphicsRendererPrivate::dragSprite(QPoint delta, QPoint modelDelta)
{
    SpriteItem* item = pressedSprite();
    if (!item || !isMovable(item->mode)) {
        return;
    }
    const QPoint by = movable(item->mode, delta, modelDelta);
    item->position = stageSum(
        item->position, {unscaled(by.x(), item->scale.x()), unscaled(by.y(), item->scale.y())});
    emit q->itemMoved(GraphicsRenderer::SpriteType, item->sprite, item->position);
}

void GraphicsRendererPrivate::dragCross(QPoint delta, QPoint modelDelta)
{
    const int number = crossOf(element);
    Cross& cross = crosses[size_t(number)];
    if (!isMovable(cross.mode)) {
        return;
    }
    cross.position = stageSum(cross.position, movable(cross.mode, delta, modelDelta));
    emit q->itemMoved(ItemType(number), nullptr, cross.position);
}

void GraphicsRenderer::mouseReleased(QPoint, Qt::MouseButton button, Qt::KeyboardModifiers)
{
    const Input input(this);
    const bool wasMoved = d->moved;
    const bool wasPressed = d->leftButtonDown;
    if (d->element == StageElement) {
        d->setCursor(Qt::OpenHandCursor);
    }
    d->leftButtonDown = false;
    d->moved = false;
    const bool draws = d->clickMode == DrawContactBoxMode;
    if (button == Qt::RightButton && draws) {
        setPositioningMode();
        emit contactDrawingExit();
    } else if (button == Qt::LeftButton && draws) {
        if (wasMoved) {
            d->releaseDrawnBox();
        }
        d->dropDrawnBox();
    } else if (button == Qt::LeftButton && wasMoved) {
        d->releaseDrag();
    } else if (button == Qt::LeftButton && wasPressed) {
        d->endClick();
    }
    d->tellSelection();
}

void GraphicsRendererPrivate::releaseDrag()
{
    if (element == GraphicsRenderer::ContactBoxElement || isSizer(element)) {
        if (isMovable(contactMode)) {
            emit q->itemReleased(GraphicsRenderer::ContactBoxesType, nullptr, QPoint());
        }
    } else if (element == GraphicsRenderer::SpriteElement) {
        const SpriteItem* item = pressedSprite();
        if (item && isMovable(item->mode)) {
            emit q->itemReleased(GraphicsRenderer::SpriteType, item->sprite, item->position);
        }
    } else if (isCross(element)) {
        const Cross& cross = crosses[size_t(crossOf(element))];
        if (isMovable(cross.mode)) {
            emit q->itemReleased(ItemType(crossOf(element)), nullptr, cross.position);
        }
    }
}

/// Writes the drawn box to the text. The slot may refill the stage, which then may already contain
/// the box.
void GraphicsRendererPrivate::releaseDrawnBox()
{
    ContactItem* drawn = drawnBox();
    if (!drawn || drawn->width == 0 || drawn->height == 0) {
        return;
    }
    const QRect rect = drawn->normalRect();
    drawn->setRect(rect);
    ContactBoxCode* box = emit q->appendContactBox(ContactBoxCode::BoxType(boxListIndex + 1), rect);
    drawn = drawnBox();
    if (box && drawn) {
        drawn->box = box;
        drawn->source = rect;
    }
}

/// The box being drawn: the last of its list, and not yet in the text.
ContactItem* GraphicsRendererPrivate::drawnBox()
{
    QVector<ContactItem>& items = contactBoxes[size_t(boxListIndex)].items;
    return items.isEmpty() || items.last().box ? nullptr : &items.last();
}

void GraphicsRendererPrivate::dropDrawnBox()
{
    if (drawnBox()) {
        contactBoxes[size_t(boxListIndex)].items.removeLast();
        q->update();
    }
}

SpriteItem* GraphicsRendererPrivate::pressedSprite()
{
    return itemIndex >= 0 && itemIndex < spriteItems.size() ? &spriteItems[itemIndex] : nullptr;
}

bool GraphicsRendererPrivate::captureColor(QPoint pos, unsigned char& index)
{
    if (element != GraphicsRenderer::SpriteElement || captureImage.isNull() ||
        captureImage.format() != QImage::Format_Indexed8) {
        return false;
    }
    const QPoint place = calcPos(GraphicsRenderer::SpriteType, unsigned(itemIndex));
    const QPoint pixel = unzoomed(difference(pos, place), zoom);
    const int x = qBound(0, pixel.x(), captureImage.width() - 1);
    const int y = qBound(0, pixel.y(), captureImage.height() - 1);
    index = captureImage.constScanLine(y)[x];
    return true;
}

}  // namespace Zorv
