#include "animation/timeline/timelinewidget.h"

#include "animation/timeline/timelinewidget_p.h"

namespace Zorv {

TimeLinePrivate::TimeLinePrivate(TimeLineWidget* widget) : owner(widget) {}
void TimeLinePrivate::moveTo(unsigned int) {}
void TimeLinePrivate::timeStep() {}

TimeLineWidget::TimeLineWidget(QWidget* parent)
    : QWidget(parent), d(std::make_unique<TimeLinePrivate>(this))
{
}

TimeLineWidget::~TimeLineWidget() = default;

unsigned int TimeLineWidget::ticksPerSecond() const
{
    return d->ticksPerSecond;
}

void TimeLineWidget::setTicksPerSecond(unsigned int ticks)
{
    d->ticksPerSecond = ticks;
}

void TimeLineWidget::addTimeLine(TimeLine* timeLine)
{
    d->timeLines.append(timeLine);
}

void TimeLineWidget::clearTimeLines()
{
    d->timeLines.clear();
}

unsigned int TimeLineWidget::currentTick() const
{
    return d->currentTick;
}

void TimeLineWidget::setCurrentTick(unsigned int) {}

float TimeLineWidget::currentFPS() const
{
    return d->currentFPS;
}

bool TimeLineWidget::isPlaying() const
{
    return d->timer.isActive();
}

void TimeLineWidget::play() {}
void TimeLineWidget::stop() {}

QSize TimeLineWidget::sizeHint() const
{
    return QWidget::sizeHint();
}

QSize TimeLineWidget::minimumSizeHint() const
{
    return QWidget::minimumSizeHint();
}

void TimeLineWidget::paintEvent(QPaintEvent*) {}
void TimeLineWidget::resizeEvent(QResizeEvent*) {}
void TimeLineWidget::mousePressEvent(QMouseEvent*) {}
void TimeLineWidget::mouseReleaseEvent(QMouseEvent*) {}
void TimeLineWidget::mouseMoveEvent(QMouseEvent*) {}
void TimeLineWidget::keyPressEvent(QKeyEvent*) {}

}  // namespace Zorv
