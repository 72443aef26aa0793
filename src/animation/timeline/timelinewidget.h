#pragma once

#include "animation/timeline/tickrange.h"

#include "zorv_export.h"

#include <QVector>
#include <QWidget>

#include <memory>
#include <optional>

namespace Zorv {

class TimeLine;
class TimeLinePrivate;

/// The clock of playback, and the strip on which frames are cells along a scale of ticks.
///
/// It knows nothing of animations: rows tell what stands at a tick, and whoever plays follows
/// `tickChanged()`. The strip shows one page of ticks, which turns when the present tick does; a
/// widget that is not wider than the names of its rows has no page, and plays all the same. While
/// the clock stands, the mouse sets the tick: the cursor follows it when it is dragged, and jumps
/// to where a click in the strip ends. The keys Left and Right go by one tick at any time.
///
/// A page begins at a multiple of ten, and is as wide as the widget. Unless that is a multiple of
/// ten, too, its last ticks can lie beyond the right border; `setWholePages()` has none of it.
///
/// The first row that has `TimeLine::cells()` can be edited while the clock stands. Its cells are
/// selected by clicks, with Ctrl and Shift as in a list, and dragged to another place; the edge
/// behind a cell is dragged to give it, or all selected ones, another length. In the upper half of
/// the scale a drag marks the range to loop, and a double click takes it away. What the row accepts
/// can be dropped between two cells. A drag tells the row nothing before its end; Escape gives it
/// up. All of it has keys. What has a name is among `actions()`, the menu at the pointer.
///
/// Main thread only.
class ZORV_EXPORT TimeLineWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TimeLineWidget(QWidget* parent = nullptr);
    ~TimeLineWidget() override;

    /// Only kept: the clock has 60 ticks a second.
    unsigned int ticksPerSecond() const;
    void setTicksPerSecond(unsigned int ticks);

    /// Adds a row at the bottom; null adds none. Rows are not owned, and have to be cleared before
    /// they go; selection and loop range go with them. A row that changes is painted again by
    /// `update()`.
    void addTimeLine(TimeLine* timeLine);
    void clearTimeLines();

    unsigned int currentTick() const;

    /// Turns to the page of the tick. Emits `tickChanged()` if it is another one.
    void setCurrentTick(unsigned int tick);

    /// With true, pages have whole tens of ticks, the rest of the width stays free, and another
    /// width turns to the page of the present tick: it is always in sight. False at first.
    void setWholePages(bool isOn);

    /// The cells that are selected, by their rising places. A row without cells has none, and those
    /// that have gone are none. They keep their places when the row changes: whoever changes it
    /// selects others.
    QVector<int> selectedCells() const;
    void setSelectedCells(const QVector<int>& cells);

    /// The ticks that the person wants to see again and again. Only kept and shown: the clock runs
    /// past its end.
    std::optional<TickRange> loopRange() const;
    void setLoopRange(const std::optional<TickRange>& range);

    /// For slow motion each tick takes the time of so many, from 1 to 10; 1 at first. May be set
    /// while the clock runs.
    int slowness() const;
    void setSlowness(int slowness);

    /// Ticks a second, as reached in the last second of playing; those of the clock until then.
    float currentFPS() const;
    bool isPlaying() const;

    /// Starts the clock at the present tick, which is told at once. Each later tick is told in
    /// its turn, however long a slot takes: none is skipped, and lateness is made up by ticks that
    /// follow at once. Other events are handled after each tick, also then.
    void play();

    /// Stops the clock; the tick stays. A slot of `tickChanged()` may call it, and may delete the
    /// widget as well.
    void stop();

    /// Fits the rows, of which one at least has room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The present tick is another one, or the first of a play.
    void tickChanged(unsigned int tickIndex);

    /// Other cells are selected.
    void selectionChanged();

    /// Another range is to be looped, or none.
    void loopRangeChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<TimeLinePrivate> d;
};

}  // namespace Zorv
