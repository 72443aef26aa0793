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

/// The playback clock, and the strip that shows frames as cells along a scale of ticks.
///
/// It knows nothing of animations: rows say what is at a tick, and a player follows
/// `tickChanged()`. The strip shows one page of ticks, and turns pages with the current tick. A
/// widget no wider than its row labels has no page but still plays. While the clock is stopped, the
/// mouse sets the tick: the cursor follows a drag, and jumps to where a click in the strip ends.
/// The keys Left and Right move by one tick at any time.
///
/// A page begins at a multiple of ten and is as wide as the widget. If that width is no multiple of
/// ten, the last ticks of a page can be beyond the right border; `setWholePages()` prevents this.
///
/// The first row with `TimeLine::cells()` can be edited while the clock is stopped. Clicks select
/// cells, with Ctrl and Shift as in a list. Dragging moves cells. Dragging the edge after a cell
/// changes its length, or that of all selected cells. A drag in the upper half of the scale marks
/// the loop range; a double click there removes it. Data that the row accepts can be dropped
/// between two cells. The row learns of a drag only at its end; Escape cancels it. Everything is
/// available by keys too. Commands with a name are among `actions()`, which are the context menu.
///
/// Main thread only.
class ZORV_EXPORT TimeLineWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TimeLineWidget(QWidget* parent = nullptr);
    ~TimeLineWidget() override;

    /// Stored only: the clock always has 60 ticks per second.
    unsigned int ticksPerSecond() const;
    void setTicksPerSecond(unsigned int ticks);

    /// Adds a row at the bottom; ignores null. Rows are not owned and must be cleared before they
    /// are destroyed; clearing also drops selection and loop range. Call `update()` to repaint a
    /// changed row.
    void addTimeLine(TimeLine* timeLine);
    void clearTimeLines();

    unsigned int currentTick() const;

    /// Turns to the page of the tick. Emits `tickChanged()` if the tick changes.
    void setCurrentTick(unsigned int tick);

    /// If on, pages have a multiple of ten ticks and the rest of the width stays empty. After a
    /// change of width the page of the current tick is shown, so that tick is always visible.
    /// Initially off.
    void setWholePages(bool isOn);

    /// The indexes of the selected cells, ascending. Empty for a row without cells; indexes that no
    /// longer exist are dropped. Selected indexes stay when the row changes: whoever changes the
    /// row must adjust the selection.
    QVector<int> selectedCells() const;
    void setSelectedCells(const QVector<int>& cells);

    /// The ticks that the user wants to loop. Stored and shown only: the clock runs past the end.
    std::optional<TickRange> loopRange() const;
    void setLoopRange(const std::optional<TickRange>& range);

    /// Slow motion: each tick takes this many tick periods, 1 to 10; initially 1. Can be set while
    /// the clock runs.
    int slowness() const;
    void setSlowness(int slowness);

    /// Ticks per second, measured over the last second of playback; before that the nominal rate.
    float currentFPS() const;
    bool isPlaying() const;

    /// Starts the clock at the current tick, which is emitted at once. Each later tick is emitted
    /// in turn, however long a slot takes: none is skipped, and after a delay ticks follow at once
    /// until the clock has caught up. Other events are processed after each tick, even then.
    void play();

    /// Stops the clock; the tick stays. A slot of `tickChanged()` may call it or delete the widget.
    void stop();

    /// Fits the rows; there is always space for at least one.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The current tick has changed, or playback starts.
    void tickChanged(unsigned int tickIndex);

    /// The selection of cells has changed.
    void selectionChanged();

    /// The loop range has changed or was removed.
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
