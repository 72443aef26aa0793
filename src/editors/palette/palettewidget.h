#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Zorv {

class PaletteObject;
class PaletteWidgetPrivate;

/// The colours of a palette as a grid of cells, sixteen per row.
///
/// Each cell is a palette slot. Selection works as in a list: a click selects one slot, Ctrl adds
/// one, Shift selects the range up to it, the right button removes one. Dragging a colour to
/// another slot shifts the colours in between by one. Escape, or leaving the widget, cancels a
/// press: nothing moves, and the release does not count as a click.
///
/// Keys act on a focus cell, which is drawn while the widget has the focus. Arrows, Home and End
/// move it and select that slot; with Shift they select the range, with Ctrl nothing. Space is a
/// left click, and Ctrl+Space toggles the slot. Return is a double click. Alt with an arrow moves
/// the colour. Ctrl+A selects all.
///
/// The grid has an undo history of the last eleven colour changes, made through `palette()` or by
/// the user. The history belongs to the shown palette: call `flatten()` after loading another one.
///
/// Mouse moves and releases are passed on to the parent. Slots connected to the signals may delete
/// the widget. Main thread only.
class ZORV_EXPORT PaletteWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PaletteWidget(QWidget* parent = nullptr);
    ~PaletteWidget() override;

    /// The selected slots, in the form that `PaletteObject` takes. Meant for reading; call
    /// `update()` after writing.
    bool selection[256] = {};

    /// The colours; all opaque black at first. Each change becomes a state of the history, except
    /// the first one. Hides `QWidget::palette()`, the widget's GUI palette. Owned by the widget;
    /// the object and the address of its colours never change.
    PaletteObject* palette() const;

    /// The lowest selected slot; 0 if there is none.
    int firstSelection() const;

    /// Clears the selection without a signal.
    void clearSelection();

    /// The number of slots shown; 256 by default.
    unsigned short colorCount() const;

    /// The slot at a point; -1 for none.
    int slotAt(QPoint place) const;

    /// The side of a cell in pixels, from 6 to 64; 12 by default.
    int cellSize() const;
    void setCellSize(int size);

    /// Makes all colours transparent black and clears the history, without a signal.
    void reset();

    /// Clears the history; the colours stay. Call it when the colours belong to another palette.
    void flatten();

    /// Undo or redo one change. Nothing happens if there is none.
    void undo();
    void redo();
    bool canUndo() const;
    bool canRedo() const;

    /// While locked, the history is frozen: changes create no state, and the four functions above
    /// do nothing. False by default.
    bool isLocked() const;
    void setLocked(bool isOn);

    /// Whether Shift and Ctrl can select several slots. True by default.
    bool isMultiSelection() const;
    void setMultiSelection(bool isOn);

    /// Whether clicks and keys select slots. True by default.
    bool isSelectable() const;
    void setSelectable(bool isOn);

    /// Whether the user can move colours to other slots. True by default.
    bool isMovable() const;
    void setMovable(bool isOn);

    /// True while `changed()` is emitted for a colour that the user moved; `colorMoved()` follows.
    bool isMoving() const;

    /// Simulates how people with another colour vision see the colours. The colours themselves, and
    /// the tool tips, do not change.
    void setColorSight(const ColorSight& sight);

    /// Adds a line after the colour in the tool tip of a slot; none if the text is empty. The
    /// function is called as long as the grid lives. An empty function, the default, adds nothing.
    void setSlotNotes(std::function<QString(int slot)> notes);

    /// The size of all cells; also the minimum size.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// Shows the first `count` slots, at most 256, and clears the selection, without a signal.
    void setColorCount(unsigned short count);

signals:
    /// Colours have changed, including by undo, redo and drag.
    void changed();

    /// The user has changed the selection.
    void selectionChanged();

    /// A slot was clicked; emitted after `selectionChanged()`. Not at the end of a drag.
    void colorClick(unsigned short color, Qt::MouseButton button);

    void colorDblClick(unsigned short color);

    /// Several slots were selected at once; emitted after `selectionChanged()`.
    void multiColorClick();

    /// A colour has moved to another slot; emitted after `changed()`.
    void colorMoved(unsigned short src, unsigned short dst);

    /// A colour is being dragged out of the widget; it does not move. A receiver starts a drag and
    /// drop with it. Without a receiver the drag continues when the mouse comes back.
    void colorDraggedOut(unsigned short color);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class PaletteWidgetPrivate;
    std::unique_ptr<PaletteWidgetPrivate> d;
};

}  // namespace Zorv
