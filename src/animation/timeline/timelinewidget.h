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
/// `tickChanged()`. Main thread only.
class ZORV_EXPORT TimeLineWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TimeLineWidget(QWidget* parent = nullptr);
    ~TimeLineWidget() override;

    /// Only kept: the clock has 60 ticks a second.
    unsigned int ticksPerSecond() const;
    void setTicksPerSecond(unsigned int ticks);

    /// Adds a row at the bottom. Rows are not owned, and have to be cleared before they go.
    void addTimeLine(TimeLine* timeLine);
    void clearTimeLines();

    unsigned int currentTick() const;

    /// Turns to the page of the tick. Emits `tickChanged()` if it is another one.
    void setCurrentTick(unsigned int tick);

    /// The rate reached in the last second of playing, 60 at its start.
    float currentFPS() const;
    bool isPlaying() const;

    /// Starts the clock at the present tick, which is told at once. Each later tick is told in
    /// its turn, however long a slot takes: none is skipped, and lateness is made up.
    void play();

    /// Stops the clock; the tick stays. May be called by a slot of `tickChanged()`.
    void stop();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
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
