#pragma once

#include "animation/timeline/cellediting_p.h"
#include "animation/timeline/tickclock_p.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QTimer>

#include <limits>

class QColor;
class QPainter;
class QPoint;

namespace Zorv {

class TimeLine;
class TimeLineWidget;

/// The clock of a time line and the state of its strip.
class TimeLinePrivate : public QObject
{
    Q_OBJECT

public:
    enum Target { NoTarget, Strip, Cursor };

    explicit TimeLinePrivate(TimeLineWidget* widget);

    void play();
    void stop();

    /// Sets the tick, turns the page and emits the signal if it has changed. The widget may be
    /// destroyed afterwards.
    void moveTo(unsigned int tick);

    int leftOf(unsigned int index) const { return LabelWidth + TickWidth * int(index); }

    /// Updates the page after a change of width or page mode.
    void fitPage();

    /// Like `moveTo()`, for the tick at an x coordinate in the strip.
    void moveToPlace(int x);

    unsigned int tickAt(int x) const;

    /// The edge between two ticks nearest to an x coordinate, as the number of the tick after it.
    qint64 edgeAt(int x) const;

    /// The x coordinate of the left edge of a tick, on or off the page.
    qint64 placeOf(qint64 tick) const { return LabelWidth + (tick - firstTick) * TickWidth; }

    /// Shows the page of the current tick.
    void turnPage();

    /// Resets the clock, so that the new speed applies at once.
    void setSlowness(int slowness);

    /// What is at a position; sets `row` if that is in the strip.
    Target hitTest(const QPoint& place);
    void showCursorShape(const QPoint& place);

    void paint(QPainter& painter) const;

    TimeLineWidget* owner;
    QList<TimeLine*> timeLines;
    unsigned int ticksPerSecond = 60;
    unsigned int currentTick = 0;
    TickClock clock;
    QElapsedTimer elapsedTimer;
    QTimer timer;
    bool playing = false;
    Target dragTarget = NoTarget;
    unsigned int row = 0;
    bool dragging = false;
    bool hasWholePages = false;
    unsigned int visibleTicks = 0;  // 0 before the first resize
    unsigned int firstTick = 0;

    CellEditing editing;

    static constexpr int LastPage = std::numeric_limits<int>::max() / 10 * 10;
    static constexpr int HeaderHeight = 20;
    static constexpr int LabelWidth = 125;
    static constexpr int TickWidth = 6;
    static constexpr int RowHeight = 30;

private:
    void timeStep();

    QColor borderColor() const;
    void paintScale(QPainter& painter) const;
    void paintName(QPainter& painter, int index) const;
    void paintCells(QPainter& painter, int index) const;
    void paintBand(QPainter& painter, const QRect& cell, const QColor& color, int length) const;
    void paintCursor(QPainter& painter) const;

    unsigned int run = 0;  // changes with each play() and stop()
};

}  // namespace Zorv
