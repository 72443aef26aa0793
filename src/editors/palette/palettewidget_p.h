#pragma once

#include "editors/palette/palettehistory_p.h"
#include "media/paletteobject.h"
#include "media/tools/colorblindness.h"

#include <QPoint>
#include <QRect>
#include <QString>

class QKeyEvent;
class QMouseEvent;
class QPaintEvent;

namespace Zorv {

class PaletteWidget;

/// The state of a grid, and its mouse and key handling.
class PaletteWidgetPrivate
{
public:
    explicit PaletteWidgetPrivate(PaletteWidget* widget);

    int slotAt(const QPoint& place) const;
    QRect cellOf(int slot) const;
    QString textOf(int slot) const;
    void beginChange();
    void paint(const QPaintEvent* event) const;

    void press(const QMouseEvent* event);
    void move(const QMouseEvent* event);
    void release(const QMouseEvent* event);
    void doubleClick(const QMouseEvent* event);
    void showTip(const QPoint& place, const QPoint& global) const;

    /// Cancels a press or drag.
    void cancel();

    /// Cancels a press or drag whose release may never arrive.
    void lose();

    /// Whether the grid uses a key; and handles it.
    bool handles(const QKeyEvent* event) const;
    void press(const QKeyEvent* event);

    PaletteWidget* owner;
    PaletteHistory history;
    PaletteObject object;
    bool isLocked = false;
    bool isMulti = true;
    bool isSelectable = true;
    bool isMovable = true;
    bool isMoving = false;
    int colorCount = 256;
    int cellSize = 12;
    int columns = 16;
    int cursor = 0;  // the slot that keys act on
    std::function<QString(int)> notes;
    ColorSight sight;

private:
    enum class Selected { Same, Other, Several };

    bool isDraggedOut(const QPoint& place);
    void endDrag();
    void click(int slot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    Selected select(int slot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    Selected selectRange(int from, int to);

    /// Emits the selection signals. False if a receiver deleted the widget.
    bool announce(Selected selected);

    void moveColor(int from, int to);
    int targetOf(int key) const;
    void goTo(int slot, Qt::KeyboardModifiers modifiers);
    void setCursor(int slot);

    bool dragging = false;
    bool isCancelled = false;  // the next release is not a click
    Qt::MouseButtons held;
    QPoint pressOffset;
    QPoint dragPos;
    int pressed = -1;
    int anchor = 0;  // start of a Shift selection by keys
};

}  // namespace Zorv
