#include "editors/palette/palettewidget.h"
#include "editors/palette/palettewidget_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QToolTip>
#include <QtMath>

#include <algorithm>

namespace Zorv {

namespace {

const Qt::KeyboardModifiers Modifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// Rounds down. QMouseEvent::pos() rounds to nearest, so at a fractional scale the last pixel of a
/// cell would count as the next cell.
QPoint placeOf(const QMouseEvent* event)
{
    return {qFloor(event->localPos().x()), qFloor(event->localPos().y())};
}

}  // namespace

// A left press stores its slot in `pressed`. Moving to another slot starts a drag, if colours can
// be moved. A release after a drag moves the colour; any other release is a click. After a drag or
// a cancel, `isCancelled` stays set until all buttons in `held` are up: their releases are no
// clicks.
void PaletteWidgetPrivate::press(const QMouseEvent* event)
{
    if (!held) {
        isCancelled = false;
    }
    held |= event->button();
    pressed = -1;
    if (event->button() == Qt::LeftButton) {
        const QPoint place = placeOf(event);
        pressed = slotAt(place);
        pressOffset = pressed < 0 ? QPoint() : place - cellOf(pressed).topLeft();
    }
}

void PaletteWidgetPrivate::move(const QMouseEvent* event)
{
    const QPoint place = placeOf(event);
    if (isMovable && pressed >= 0 && (dragging || slotAt(place) != pressed)) {
        if (isDraggedOut(place)) {
            return;
        }
        dragging = true;
        dragPos = place;
        QToolTip::hideText();
        owner->update();
    } else {
        showTip(place, event->globalPos());
    }
}

/// True if a receiver has taken over the drag. It may have deleted the widget.
bool PaletteWidgetPrivate::isDraggedOut(const QPoint& place)
{
    const int far = QApplication::startDragDistance();
    const QMetaMethod signal = QMetaMethod::fromSignal(&PaletteWidget::colorDraggedOut);
    if (owner->rect().adjusted(-far, -far, far, far).contains(place) ||
        !owner->isSignalConnected(signal)) {
        return false;
    }
    const int slot = pressed;
    lose();
    emit owner->colorDraggedOut(static_cast<unsigned short>(slot));
    return true;
}

void PaletteWidgetPrivate::showTip(const QPoint& place, const QPoint& global) const
{
    const int slot = slotAt(place);
    if (slot >= 0) {
        QToolTip::showText(global, textOf(slot), owner, cellOf(slot));
    } else {
        QToolTip::hideText();
    }
}

// Finish all press state before emitting anything: a slot may run a dialog or delete the widget.
void PaletteWidgetPrivate::release(const QMouseEvent* event)
{
    const int slot = slotAt(placeOf(event));
    const int source = pressed;
    const bool isDrag = dragging;
    const bool isNothing = isCancelled;
    held &= ~Qt::MouseButtons(event->button());
    endDrag();
    isCancelled = held && (isDrag || isNothing);
    if (isNothing || slot < 0) {
        return;
    }
    if (!isDrag) {
        setCursor(slot);
        anchor = slot;
        click(slot, event->button(), event->modifiers());
    } else if (source >= 0) {
        moveColor(source, slot);
    }
}

void PaletteWidgetPrivate::doubleClick(const QMouseEvent* event)
{
    pressed = -1;
    const int slot = slotAt(placeOf(event));
    if (slot >= 0) {
        emit owner->colorDblClick(static_cast<unsigned short>(slot));
    }
}

void PaletteWidgetPrivate::endDrag()
{
    dragging = false;
    pressed = -1;
    owner->update();
}

void PaletteWidgetPrivate::cancel()
{
    if (held || dragging) {
        isCancelled = true;
        endDrag();
    }
}

void PaletteWidgetPrivate::lose()
{
    cancel();
    held = Qt::NoButton;
}

void PaletteWidgetPrivate::click(int slot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const Selected selected =
        isSelectable ? select(slot, button, modifiers & Modifiers) : Selected::Same;
    if (announce(selected)) {
        emit owner->colorClick(static_cast<unsigned short>(slot), button);
    }
}

PaletteWidgetPrivate::Selected PaletteWidgetPrivate::select(int slot, Qt::MouseButton button,
                                                            Qt::KeyboardModifiers modifiers)
{
    bool* const selection = owner->selection;
    const bool isCtrl = modifiers == Qt::ControlModifier;
    const bool isShift = modifiers == Qt::ShiftModifier;
    if (button == Qt::RightButton) {
        selection[slot] = false;
    } else if (button != Qt::LeftButton || (modifiers && !isCtrl && !isShift)) {
        return Selected::Same;
    } else if (isMulti && isCtrl) {
        selection[slot] = true;
    } else if (isMulti && isShift) {
        int last = 255;
        while (last >= 0 && !selection[last]) {
            --last;
        }
        return selectRange(last < 0 ? slot : last, slot);
    } else {
        return selectRange(slot, slot);
    }
    return Selected::Other;
}

PaletteWidgetPrivate::Selected PaletteWidgetPrivate::selectRange(int from, int to)
{
    owner->clearSelection();
    std::fill(owner->selection + std::min(from, to), owner->selection + std::max(from, to) + 1,
              true);
    return from == to ? Selected::Other : Selected::Several;
}

bool PaletteWidgetPrivate::announce(Selected selected)
{
    const QPointer<PaletteWidget> alive(owner);
    owner->update();
    if (selected != Selected::Same) {
        emit owner->selectionChanged();
    }
    if (alive && selected == Selected::Several) {
        emit owner->multiColorClick();
    }
    return alive;
}

void PaletteWidgetPrivate::moveColor(int from, int to)
{
    if (!isMovable) {
        return;
    }
    beginChange();
    RGBA* const colors = history.colors();
    if (from < to) {
        std::rotate(colors + from, colors + from + 1, colors + to + 1);
    } else {
        std::rotate(colors + to, colors + from, colors + from + 1);
    }
    owner->update();
    const QPointer<PaletteWidget> alive(owner);
    isMoving = true;
    emit owner->changed();
    if (alive) {
        isMoving = false;
        emit owner->colorMoved(static_cast<unsigned short>(from), static_cast<unsigned short>(to));
    }
}

/// The target slot of a key; -1 if the key does not move.
int PaletteWidgetPrivate::targetOf(int key) const
{
    const auto step = [this](int by) {
        const int slot = cursor + by;
        return slot >= 0 && slot < colorCount ? slot : cursor;
    };
    if (colorCount == 0) {
        return -1;
    }
    switch (key) {
    case Qt::Key_Left:
        return step(-1);
    case Qt::Key_Right:
        return step(1);
    case Qt::Key_Up:
        return step(-columns);
    case Qt::Key_Down:
        return step(columns);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return colorCount - 1;
    default:
        return -1;
    }
}

bool PaletteWidgetPrivate::handles(const QKeyEvent* event) const
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & Modifiers;
    const bool isUsual =
        !modifiers || modifiers == Qt::ShiftModifier || modifiers == Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_Escape:
        return held || dragging;
    case Qt::Key_Space:
        return isUsual && colorCount > 0;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return !modifiers && colorCount > 0;
    case Qt::Key_A:
        return modifiers == Qt::ControlModifier && isSelectable && isMulti && colorCount > 0;
    default:
        return (isUsual || modifiers == Qt::AltModifier) && targetOf(event->key()) >= 0;
    }
}

void PaletteWidgetPrivate::press(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & Modifiers;
    switch (event->key()) {
    case Qt::Key_Escape:
        cancel();
        break;
    case Qt::Key_Space:
        if (modifiers == Qt::ControlModifier && isSelectable && owner->selection[cursor]) {
            announce(select(cursor, Qt::RightButton, {}));
        } else {
            anchor = cursor;
            click(cursor, Qt::LeftButton, modifiers);
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit owner->colorDblClick(static_cast<unsigned short>(cursor));
        break;
    case Qt::Key_A:
        announce(selectRange(0, colorCount - 1));
        break;
    default:
        goTo(targetOf(event->key()), modifiers);
    }
}

void PaletteWidgetPrivate::goTo(int slot, Qt::KeyboardModifiers modifiers)
{
    const int before = cursor;
    setCursor(slot);
    const bool isRange = modifiers == Qt::ShiftModifier && isMulti;
    if (!isRange) {
        anchor = slot;
    }
    if (modifiers == Qt::AltModifier) {
        if (slot != before) {
            moveColor(before, slot);
        }
    } else if (isSelectable && modifiers != Qt::ControlModifier) {
        announce(selectRange(std::min(anchor, colorCount - 1), slot));
    }
}

void PaletteWidgetPrivate::setCursor(int slot)
{
    cursor = slot;
    owner->setAccessibleDescription(textOf(slot));
    owner->update();
}

}  // namespace Zorv
