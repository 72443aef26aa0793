#pragma once

#include "animation/timeline/cellselection_p.h"
#include "animation/timeline/tickrange.h"
#include "animation/timeline/timelinecells.h"

#include <QPoint>
#include <QTimer>

#include <optional>

class QAction;
class QDragMoveEvent;
class QDropEvent;
class QKeyEvent;
class QMouseEvent;
class QPainter;
class QRect;

namespace Zorv {

class TimeLinePrivate;
struct CellAction;

/// What a person does to the cells of a strip: those of the first row that has any.
///
/// A press of the mouse becomes one act: a drag of an edge, of cells, of the range to loop, or a
/// click. Until the release there is only the mark of what is to come; the row hears of it once. A
/// drag of which the cells have changed meanwhile is given up. Events that the cells have no use
/// for are left to the strip. Whatever tells a row or a signal of something may return to a strip
/// that is gone.
class CellEditing
{
public:
    explicit CellEditing(TimeLinePrivate* strip);

    /// Null without such a row.
    TimeLineCells* cells() const;

    /// Without cells that have gone.
    CellSelection& selection();
    void select(const QVector<int>& cells);

    const std::optional<TickRange>& range() const { return m_range; }
    void setRange(const std::optional<TickRange>& range);

    /// @name Events of the strip
    /// True if nobody else is to take them.
    /// @{
    bool press(const QMouseEvent* event);
    bool move(const QMouseEvent* event);
    bool release(const QMouseEvent* event);
    bool doubleClick(const QMouseEvent* event);
    bool handles(const QKeyEvent* event) const;
    bool key(const QKeyEvent* event);
    bool dragOver(QDragMoveEvent* event);
    bool drop(QDropEvent* event);
    /// @}

    /// @name The actions of the strip
    /// After other rows, in another language, and where others of them can be used.
    /// @{
    void offerActions();
    void nameActions();
    void updateActions();
    /// @}

    /// Gives up the drag that goes on.
    void cancel();

    /// What a press at a place would do.
    Qt::CursorShape shape(const QPoint& place) const;

    void paint(QPainter& painter) const;

    /// @name What keys and the menu do
    /// To the selected cells; without any to the one at the present tick.
    /// @{
    void lengthen();
    void shorten();
    void toggleEndless();
    void moveLeft();
    void moveRight();
    void goLeft();
    void goRight();
    void extendLeft();
    void extendRight();
    void selectAll();
    void beginRange();
    void endRange();
    void loopSelection();
    void clearRange();
    void leave();
    /// @}

private:
    enum Part { Elsewhere, Cursor, Body, Edge, Scale, RangeStart, RangeEnd };
    enum Act { NoAct, Pressed, Resizing, Moving, Ranging, Dropping };

    /// What lies below a place.
    struct Hit
    {
        Part part = Elsewhere;
        int cell = -1;
    };

    int row() const;
    int top() const;
    Hit hitTest(const QPoint& place) const;
    Hit hitScale(const QPoint& place) const;
    int edgeAt(int x) const;
    int bodyAt(int x) const;
    int gapAt(int x) const;
    bool isEditable() const;
    bool allows(int need) const;
    void run(const CellAction& action);
    QVector<int> acted();

    void begin(Act act);
    void beginDrag();
    void beginResize();
    void follow(const QPoint& place);
    void finish(const QMouseEvent* event);
    void click(int x, Qt::KeyboardModifiers modifiers);
    void pick(int cell, Qt::KeyboardModifiers modifiers);
    void scroll();
    bool isStale() const;

    void takeLengths(const QVector<int>& cells);
    QVector<int> changedLengths(int change) const;
    void changeLengths(int change);
    void giveLengths(const QVector<int>& lengths);
    void moveTo(int target);
    int neighbour(int index, int direction) const;
    void step(int direction, Qt::KeyboardModifiers modifiers);
    TickRange newRange() const;

    void paintCells(QPainter& painter) const;
    void paintSelected(QPainter& painter, qint64 left, qint64 length) const;
    void paintHidden(QPainter& painter, qint64 place) const;
    void paintRange(QPainter& painter) const;
    void paintResize(QPainter& painter) const;
    void paintGap(QPainter& painter) const;
    QRect pageRect() const;

    TimeLinePrivate* m_strip;
    CellSelection m_selection;
    std::optional<TickRange> m_range;

    Act m_act = NoAct;
    QPoint m_pressed;  // where
    Hit m_hit;         // what
    Qt::KeyboardModifiers m_modifiers;
    QPoint m_place;           // of the mouse now
    unsigned int m_tick = 0;  // from which the range is drawn
    int m_count = 0;          // of cells, as the drag began
    QVector<int> m_dragged;   // cells that get another length
    QVector<int> m_lengths;   // theirs
    int m_before = 1;         // how many of these move the edge that is dragged
    qint64 m_edge = 0;        // the tick behind the dragged cell
    int m_change = 0;         // of their lengths
    int m_gap = -1;           // in front of which cells are to be put
    QTimer m_scrolling;
    QVector<QAction*> m_actions;  // those of the table that have a text
};

}  // namespace Zorv
