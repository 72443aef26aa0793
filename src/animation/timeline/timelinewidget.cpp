#include "animation/timeline/timelinewidget.h"

#include "animation/timeline/timelinewidget_p.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <limits>

// Each timeout of the clock advances one tick, emits it, lets other events run, and restarts the
// timer with the interval from `TickClock`. If a slot was slow, that interval is 0 until the lost
// time is made up, so every tick is emitted. Processing events in between keeps the window
// responsive even then.

namespace Zorv {

namespace {

constexpr unsigned int LastTick = std::numeric_limits<unsigned int>::max();
constexpr int LargestSlowness = 10;

}  // namespace

TimeLinePrivate::TimeLinePrivate(TimeLineWidget* widget) : owner(widget), editing(this)
{
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(clock.firstInterval());
}

void TimeLinePrivate::play()
{
    ++run;
    playing = true;
    editing.cancel();
    disconnect(&timer, &QTimer::timeout, this, &TimeLinePrivate::timeStep);
    connect(&timer, &QTimer::timeout, this, &TimeLinePrivate::timeStep);
    clock = TickClock{clock.slowness};
    elapsedTimer.start();
    timer.start(clock.firstInterval());
    emit owner->tickChanged(currentTick);
}

void TimeLinePrivate::stop()
{
    ++run;
    playing = false;
    disconnect(&timer, &QTimer::timeout, this, &TimeLinePrivate::timeStep);
    timer.stop();
}

// Slots, and events processed between ticks, may stop or restart the clock or delete the widget.
// `run` changes with each start and stop, so a difference means: not this playback any more.
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

void TimeLinePrivate::setSlowness(int slowness)
{
    clock = TickClock{std::clamp(slowness, 1, LargestSlowness)};
}

void TimeLinePrivate::moveToPlace(int x)
{
    moveTo(tickAt(x));
}

unsigned int TimeLinePrivate::tickAt(int x) const
{
    const qint64 tick = qint64(x - LabelWidth) / TickWidth + firstTick;
    return static_cast<unsigned int>(std::clamp<qint64>(tick, 0, LastTick));
}

qint64 TimeLinePrivate::edgeAt(int x) const
{
    return tickAt(x + TickWidth / 2);
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

TimeLinePrivate::Target TimeLinePrivate::hitTest(const QPoint& place)
{
    const qint64 cursor = placeOf(currentTick);
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
        owner->setCursor(editing.shape(place));
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
        d->editing.cancel();
        d->timeLines.append(timeLine);
        d->editing.offerActions();
        setAcceptDrops(d->editing.cells());
        updateGeometry();
        update();
    }
}

void TimeLineWidget::clearTimeLines()
{
    d->editing.select({});
    d->editing.setRange({});
    d->timeLines.clear();
    d->editing.cancel();
    d->editing.offerActions();
    setAcceptDrops(false);
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

QVector<int> TimeLineWidget::selectedCells() const
{
    return d->editing.selection().cells();
}

void TimeLineWidget::setSelectedCells(const QVector<int>& cells)
{
    d->editing.select(cells);
}

std::optional<TickRange> TimeLineWidget::loopRange() const
{
    return d->editing.range();
}

void TimeLineWidget::setLoopRange(const std::optional<TickRange>& range)
{
    d->editing.setRange(range);
}

int TimeLineWidget::slowness() const
{
    return d->clock.slowness;
}

void TimeLineWidget::setSlowness(int slowness)
{
    d->setSlowness(slowness);
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
    // The line below the last row needs one more pixel.
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

bool TimeLineWidget::event(QEvent* event)
{
    // Keys for cells take precedence over shortcuts of the window.
    if (event->type() == QEvent::ShortcutOverride &&
        d->editing.handles(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void TimeLineWidget::mousePressEvent(QMouseEvent* event)
{
    const QPointer<TimeLineWidget> alive(this);
    if (!d->playing && !d->editing.press(event) && alive) {
        d->dragTarget = d->hitTest(event->pos());
        d->dragging = true;
    }
    if (alive) {
        setFocus(Qt::MouseFocusReason);
    }
}

void TimeLineWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<TimeLineWidget> alive(this);
    if (d->editing.release(event) || !alive) {
        return;
    }
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
    if (d->editing.move(event)) {
        return;
    }
    if (!d->dragging) {
        d->showCursorShape(event->pos());
    } else if (d->dragTarget == TimeLinePrivate::Cursor) {
        d->moveToPlace(event->x());
    }
}

void TimeLineWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (d->playing || !d->editing.doubleClick(event)) {
        QWidget::mouseDoubleClickEvent(event);
    }
}

void TimeLineWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->editing.nameActions();
    }
    QWidget::changeEvent(event);
}

void TimeLineWidget::focusInEvent(QFocusEvent* event)
{
    d->editing.updateActions();
    QWidget::focusInEvent(event);
}

void TimeLineWidget::dragEnterEvent(QDragEnterEvent* event)
{
    dragMoveEvent(event);
}

void TimeLineWidget::dragMoveEvent(QDragMoveEvent* event)
{
    event->setAccepted(d->editing.dragOver(event));
}

void TimeLineWidget::dragLeaveEvent(QDragLeaveEvent*)
{
    d->editing.cancel();
}

void TimeLineWidget::dropEvent(QDropEvent* event)
{
    event->setAccepted(d->editing.drop(event));
}

void TimeLineWidget::hideEvent(QHideEvent* event)
{
    d->editing.cancel();
    QWidget::hideEvent(event);
}

void TimeLineWidget::keyPressEvent(QKeyEvent* event)
{
    const unsigned int tick = d->currentTick;
    if (d->editing.key(event)) {
        return;
    }
    if (event->key() == Qt::Key_Right) {
        d->moveTo(tick < LastTick ? tick + 1 : tick);
    } else if (event->key() == Qt::Key_Left) {
        d->moveTo(tick > 0 ? tick - 1 : 0);
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace Zorv
