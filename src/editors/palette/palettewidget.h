#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Zorv {

class PaletteObject;
class PaletteWidgetPrivate;

/// The colours of a palette as a grid of cells, sixteen in a row.
///
/// A cell is a slot. Slots are selected as in a list: a click selects one, Ctrl adds one, Shift
/// takes all up to it, the right button takes one out. A colour that is dragged to another slot
/// moves those between by one. Escape, or leaving the widget, gives a press up: nothing moves,
/// and its release is no click.
///
/// Keys do the same at a cell of their own, which is drawn while the widget has the focus: arrows,
/// Home and End go to a slot and select it, with Shift all on the way, with Ctrl nothing; Space is
/// a left click, and with Ctrl adds or takes out; Return is a double click; Alt with an arrow moves
/// the colour; Ctrl+A selects all.
///
/// The grid keeps the last eleven changes of its colours, made through `palette()` or by the
/// person. They belong to what is shown: call `flatten()` after another palette was loaded.
///
/// Mouse moves and releases go on to the parent. Slots may delete the widget. Main thread only.
class ZORV_EXPORT PaletteWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PaletteWidget(QWidget* parent = nullptr);
    ~PaletteWidget() override;

    /// The selected slots, in the form that `PaletteObject` takes. To be read; who writes them
    /// calls `update()`.
    bool selection[256] = {};

    /// The colours; all opaque black at first. Each change of them is a state of the history, but
    /// the first one. It hides the palette of colours that Qt paints widgets with. Owned by the
    /// widget; it stays the same object, and the colours stay at their place in memory.
    PaletteObject* palette() const;

    /// The lowest selected slot, 0 if there is none.
    int firstSelection() const;

    /// Selects nothing, without a signal.
    void clearSelection();

    /// Slots that are shown, 256 at first.
    unsigned short colorCount() const;

    /// The slot below a place, -1 for none.
    int slotAt(QPoint place) const;

    /// The side of a cell, 12 at first; from 6 to 64.
    int cellSize() const;
    void setCellSize(int size);

    /// Makes all colours transparent black and forgets the history, without a signal.
    void reset();

    /// Forgets the history; the colours stay. Call it when they are those of another palette.
    void flatten();

    /// One change back or forth. Nothing if there is none.
    void undo();
    void redo();
    bool canUndo() const;
    bool canRedo() const;

    /// While true, the history stays as it is: changes make no state, and the four operations above
    /// do nothing. False at first.
    bool isLocked() const;
    void setLocked(bool isOn);

    /// Whether Shift and Ctrl select more than one slot. True at first.
    bool isMultiSelection() const;
    void setMultiSelection(bool isOn);

    /// Whether clicks and keys select. True at first.
    bool isSelectable() const;
    void setSelectable(bool isOn);

    /// Whether the person can move colours to other slots. True at first.
    bool isMovable() const;
    void setMovable(bool isOn);

    /// True while `changed()` tells of a colour that the person has moved: `colorMoved()` follows.
    bool isMoving() const;

    /// Paints colours as somebody else sees them. The colours stay, and tips tell them as they are.
    void setColorSight(const ColorSight& sight);

    /// What a slot is told of besides its colour: a line behind that in its tip. None for an empty
    /// text. The function is called while the grid lives; an empty one, as at first, for nothing.
    void setSlotNotes(std::function<QString(int slot)> notes);

    /// All cells; also the least size.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// Shows the first `count` slots, at most 256, and selects none, without a signal.
    void setColorCount(unsigned short count);

signals:
    /// Colours have changed, also by undo, redo and a drag.
    void changed();

    /// The person has selected otherwise.
    void selectionChanged();

    /// A slot was clicked, behind `selectionChanged()`. Not at the end of a drag.
    void colorClick(unsigned short color, Qt::MouseButton button);

    void colorDblClick(unsigned short color);

    /// Several slots were selected at once, behind `selectionChanged()`.
    void multiColorClick();

    /// The colour of a slot has gone to another, behind `changed()`.
    void colorMoved(unsigned short src, unsigned short dst);

    /// The colour of a slot is dragged out of the widget: it does not move. Who is connected makes
    /// a drag of it; without anybody the drag goes on when the mouse comes back.
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
