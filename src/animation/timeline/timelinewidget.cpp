#include "animation/timeline/timelinewidget.h"

#include "animation/timeline/timelinewidget_p.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <limits>

namespace Zorv {

namespace {

constexpr unsigned int LastTick = std::numeric_limits<unsigned int>::max();

}  // namespace

TimeLinePrivate::TimeLinePrivate(TimeLineWidget* widget) : owner(widget)
{
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(TickClock::FirstInterval);
}

void TimeLinePrivate::play()
{
    ++run;
    playing = true;
    disconnect(&timer, &QTimer::timeout, this, &TimeLinePrivate::timeStep);
    connect(&timer, &QTimer::timeout, this, &TimeLinePrivate::timeStep);
    clock = TickClock();
    elapsedTimer.start();
    timer.start(TickClock::FirstInterval);
    emit owner->tickChanged(currentTick);
}

void TimeLinePrivate::stop()
{
    ++run;
    playing = false;
    disconnect(&timer, &QTimer::timeout, this, &TimeLinePrivate::timeStep);
    timer.stop();
}

// Slots, and events handled in between, may stop the clock, start it again, or delete the widget.
void TimeLinePrivate::timeStep()
{
    const QPointer<TimeLinePrivate> alive(this);
    const auto goesOn = [this, &alive, before = run] { return alive && run == before; };
    moveTo(currentTick + 1);
    if (!goesOn()) {
        return;
    }
    const qint64 elapsed = elapsedTimer.nsecsElapsed();
    elapsedTimer.start();
    const int interval = clock.step(elapsed);
    timer.stop();
    QCoreApplication::processEvents();
    if (goesOn()) {
        timer.start(interval);
    }
}

void TimeLinePrivate::moveTo(unsigned int tick)
{
    const bool changed = tick != currentTick;
    currentTick = tick;
    turnPage();
    owner->update();
    if (changed) {
        emit owner->tickChanged(tick);
    }
}

void TimeLinePrivate::moveToPlace(int x)
{
    const qint64 tick = qint64(x - LabelWidth) / TickWidth + firstTick;
    moveTo(static_cast<unsigned int>(std::clamp<qint64>(tick, 0, LastTick)));
}

void TimeLinePrivate::turnPage()
{
    if (visibleTicks > 0) {
        firstTick = (currentTick - currentTick % visibleTicks) / 10 * 10;
    }
}

void TimeLinePrivate::fitPage()
{
    visibleTicks = static_cast<unsigned int>(std::max(owner->width() - LabelWidth, 0) / TickWidth);
    if (hasWholePages) {
        visibleTicks = visibleTicks / 10 * 10;
        turnPage();
    }
    owner->update();
}

qint64 TimeLinePrivate::cursorPlace() const
{
    return (qint64(currentTick) - firstTick) * TickWidth + LabelWidth;
}

TimeLinePrivate::Target TimeLinePrivate::hitTest(const QPoint& place)
{
    const qint64 cursor = cursorPlace();
    if (place.x() >= cursor && place.x() < cursor + TickWidth) {
        return Cursor;
    }
    if (place.x() > LabelWidth && !(hasWholePages && place.x() >= leftOf(visibleTicks))) {
        row = static_cast<unsigned int>(std::max(place.y() - HeaderHeight, 0) / RowHeight);
        return Strip;
    }
    return NoTarget;
}

void TimeLinePrivate::showCursorShape(const QPoint& place)
{
    if (!playing) {
        owner->setCursor(hitTest(place) == Cursor ? Qt::SizeHorCursor : Qt::ArrowCursor);
    }
}

TimeLineWidget::TimeLineWidget(QWidget* parent)
    : QWidget(parent), d(std::make_unique<TimeLinePrivate>(this))
{
    setAttribute(Qt::WA_MouseTracking);
    setAutoFillBackground(false);
    setFocusPolicy(Qt::StrongFocus);
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
    if (timeLine) {
        d->timeLines.append(timeLine);
        updateGeometry();
        update();
    }
}

void TimeLineWidget::clearTimeLines()
{
    d->timeLines.clear();
    updateGeometry();
    update();
}

unsigned int TimeLineWidget::currentTick() const
{
    return d->currentTick;
}

void TimeLineWidget::setCurrentTick(unsigned int tick)
{
    d->moveTo(tick);
}

void TimeLineWidget::setWholePages(bool isOn)
{
    d->hasWholePages = isOn;
    d->fitPage();
}

float TimeLineWidget::currentFPS() const
{
    return d->clock.currentFPS;
}

bool TimeLineWidget::isPlaying() const
{
    return d->playing;
}

void TimeLineWidget::play()
{
    d->play();
}

void TimeLineWidget::stop()
{
    d->stop();
}

QSize TimeLineWidget::sizeHint() const
{
    return {d->LabelWidth + 120 * d->TickWidth, minimumSizeHint().height()};
}

QSize TimeLineWidget::minimumSizeHint() const
{
    // The line below the last row needs a pixel of its own.
    return {d->LabelWidth + 10 * d->TickWidth,
            d->HeaderHeight + d->RowHeight * std::max(d->timeLines.size(), 1) + 1};
}

void TimeLineWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    d->paint(painter);
}

void TimeLineWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->fitPage();
}

void TimeLineWidget::mousePressEvent(QMouseEvent* event)
{
    if (!d->playing) {
        d->dragTarget = d->hitTest(event->pos());
        d->dragging = true;
    }
    setFocus(Qt::MouseFocusReason);
}

void TimeLineWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<TimeLineWidget> alive(this);
    if (d->dragging && d->dragTarget == TimeLinePrivate::Strip) {
        d->moveToPlace(event->x());
    }
    if (alive) {
        d->showCursorShape(event->pos());
        d->dragging = false;
    }
}

void TimeLineWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->dragging) {
        d->showCursorShape(event->pos());
    } else if (d->dragTarget == TimeLinePrivate::Cursor) {
        d->moveToPlace(event->x());
    }
}

void TimeLineWidget::keyPressEvent(QKeyEvent* event)
{
    const unsigned int tick = d->currentTick;
    if (event->key() == Qt::Key_Right) {
        d->moveTo(tick < LastTick ? tick + 1 : tick);
    } else if (event->key() == Qt::Key_Left) {
        d->moveTo(tick > 0 ? tick - 1 : 0);
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace Zorv
