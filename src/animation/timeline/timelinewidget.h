#pragma once

#include "zorv_export.h"

#include <QWidget>

#include <memory>

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
/// ten, too, its last ticks can lie beyond the right border; `setWholePages()` has none of it. Main
/// thread only.
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
    /// they go. A row that changes is painted again by `update()`.
    void addTimeLine(TimeLine* timeLine);
    void clearTimeLines();

    unsigned int currentTick() const;

    /// Turns to the page of the tick. Emits `tickChanged()` if it is another one.
    void setCurrentTick(unsigned int tick);

    /// With true, pages have whole tens of ticks, the rest of the width stays free, and another
    /// width turns to the page of the present tick: it is always in sight. False at first.
    void setWholePages(bool isOn);

    /// Ticks a second, as reached in the last second of playing; 60 until then.
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

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<TimeLinePrivate> d;
};

}  // namespace Zorv
