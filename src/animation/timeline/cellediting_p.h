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

/// Mouse and keyboard editing of the cells of a strip: of the first row that has cells.
///
/// A mouse press becomes one action: dragging an edge, dragging cells, marking the loop range, or a
/// click. Until the release only a preview is drawn; then the row is changed once. A drag is
/// cancelled if its cells change meanwhile. Events that do not concern cells are left to the strip.
/// Each call to the row and each signal may destroy the strip, so check before using it afterwards.
class CellEditing
{
public:
    explicit CellEditing(TimeLinePrivate* strip);

    /// Null without such a row.
    TimeLineCells* cells() const;

    /// Without cells that no longer exist.
    CellSelection& selection();
    void select(const QVector<int>& cells);

    const std::optional<TickRange>& range() const { return m_range; }
    void setRange(const std::optional<TickRange>& range);

    /// @name Events of the strip
    /// True if the event is used up.
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
    /// Call them after a change of rows, language and state, respectively.
    /// @{
    void offerActions();
    void nameActions();
    void updateActions();
    /// @}

    /// Cancels the current drag.
    void cancel();

    /// The cursor shape for what a press at this position would do.
    Qt::CursorShape shape(const QPoint& place) const;

    void paint(QPainter& painter) const;

    /// @name Commands of keys and menu
    /// For the selected cells, or for the cell at the current tick if none is selected.
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

    /// What is at a position.
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
    QPoint m_pressed;  // position
    Hit m_hit;         // what was pressed
    Qt::KeyboardModifiers m_modifiers;
    QPoint m_place;           // current mouse position
    unsigned int m_tick = 0;  // where marking the range started
    int m_count = 0;          // of cells, when the drag began
    QVector<int> m_dragged;   // cells whose length changes
    QVector<int> m_lengths;   // their original lengths
    int m_before = 1;         // how many cells up to the dragged edge grow with it
    qint64 m_edge = 0;        // the tick after the dragged cell
    int m_change = 0;         // of each length
    int m_gap = -1;           // where cells will be inserted
    QTimer m_scrolling;
    QVector<QAction*> m_actions;  // the menu actions
};

}  // namespace Zorv
