#include "editors/sound/audiosamplewidget.h"

#include "editors/sound/audiosamplewidget_p.h"
#include "media/pcmsamples_p.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtConcurrent>

#include <cmath>

// A sound passes through three stages. It is pending for `LoadDelay`, so that stepping
// quickly through a list loads nothing. Then its samples are read, in a worker thread
// if there is a reader. At last load() shows it, and the pyramid of extremes is built,
// for large sounds in a worker thread too: until it is ready, waveform and levels are
// missing.

namespace Zorv {

namespace {

constexpr int LoadDelay = 150;       // milliseconds
constexpr int SoonShaped = 4 << 20;  // bytes; smaller sounds are scanned in the main thread
constexpr double LeastVisible = 8;   // frames
constexpr double ZoomStep = 1.25;
constexpr double ScrollPart = 0.1;  // part of the visible range
constexpr double WheelStep = 120;

}  // namespace

AudioSampleWidgetPrivate::AudioSampleWidgetPrivate(AudioSampleWidget* widget) : q(widget)
{
    loadTimer.setSingleShot(true);
    loadTimer.setInterval(LoadDelay);
    bar.setParent(q);
    bar.setFocusPolicy(Qt::NoFocus);
    bar.hide();
    QObject::connect(&loadTimer, &QTimer::timeout, q, [this] { read(); });
    QObject::connect(&reading, &QFutureWatcherBase::finished, q, [this] {
        if (pendingReader && reading.future().resultCount() > 0) {
            pending.data = reading.result();
            pendingReader = {};
            load();
        }
    });
    QObject::connect(&bar, &QScrollBar::valueChanged, q,
                     [this](int value) { q->showFrames(value, visibleFrames); });
    QObject::connect(&shapeWork, &QFutureWatcherBase::finished, q, [this] {
        if (shapeWork.future().resultCount() > 0) {
            shape = shapeWork.result();
            q->update();
        }
    });
    QObject::connect(&player, &SoundPlayer::moved, q, [this] { moved(); });
    QObject::connect(&player, &SoundPlayer::stateChanged, q, [this](SoundSample::State state) {
        q->update();
        emit q->stateChanged(state);
    });
    QObject::connect(&player, &SoundPlayer::problemChanged, q, [this] {
        q->setToolTip(player.problem());  // the status line may be too short
        q->update();
        emit q->problemChanged();
    });
}

void AudioSampleWidgetPrivate::setPending(const SoundSample& sound,
                                          const std::function<QByteArray()>& reader)
{
    player.stop();
    loadTimer.stop();
    reading.setFuture({});
    pending = sound;
    pendingReader = reader;
    loadTimer.start();
}

/// Uses a worker thread: unpacking a long sound would block the window noticeably.
void AudioSampleWidgetPrivate::read()
{
    if (pendingReader) {
        reading.setFuture(QtConcurrent::run(pendingReader));
    } else {
        load();
    }
}

void AudioSampleWidgetPrivate::load()
{
    loadTimer.stop();
    const bool isAlike = isSameForm(pending, sample) && wholeSound(pending).count == frames;
    sample = pending;
    frames = wholeSound(sample).count;
    anchor = -1;
    takeShape();
    if (!isAlike) {
        firstFrame = 0;
        visibleFrames = frames;
        q->setSelection({});
    }
    recalculate();
    player.setSound(sample);
}

/// Scans a long sound in a worker thread.
void AudioSampleWidgetPrivate::takeShape()
{
    shapeWork.setFuture({});
    shape.reset();
    if (sample.data.size() <= SoonShaped) {
        shape = std::make_shared<WavePyramid>(sample);
    } else {
        shapeWork.setFuture(
            QtConcurrent::run([sound = sample]() -> std::shared_ptr<const WavePyramid> {
                return std::make_shared<WavePyramid>(sound);
            }));
    }
}

void AudioSampleWidgetPrivate::recalculate()
{
    const int width = qMax(q->width(), 1);
    framesPerPixel = visibleFrames / width;
    pixelsPerFrame = width / qMax(visibleFrames, 1.0);
    channelHeight = double(q->height() - RoomBelowStrips) / qMax<int>(sample.channels, 1);
    points.resize(pixelsPerFrame < 1 ? 2 * (width + 2) : int(visibleFrames) + 4);
    shownLine = -1;
    const QSignalBlocker blocker(&bar);
    bar.setVisible(visibleFrames < frames);
    bar.setRange(0, int(frames - visibleFrames));
    bar.setPageStep(qMax(int(visibleFrames), 1));
    bar.setSingleStep(qMax(int(visibleFrames * ScrollPart), 1));
    bar.setValue(int(firstFrame));
    const int height = qMin(bar.sizeHint().height(), RoomBelowStrips / 2);
    bar.setGeometry(0, q->height() - height, width, height);
    q->update();
}

/// Repaints only the old and new place of the playback line, and the levels.
void AudioSampleWidgetPrivate::moved()
{
    const int line = lineX();
    for (const int x : {shownLine, line}) {
        q->update(x - 3, 0, 7, q->height());
    }
    q->update(levelPlace());
    shownLine = line;
}

int AudioSampleWidgetPrivate::frameAt(double x) const
{
    return int(qBound(0.0, firstFrame + x * framesPerPixel, double(frames)));
}

void AudioSampleWidgetPrivate::zoom(double factor, double x)
{
    const double frame = firstFrame + x * framesPerPixel;
    const double count =
        qBound(qMin(LeastVisible, double(frames)), visibleFrames / factor, double(frames));
    q->showFrames(frame - x * count / qMax(q->width(), 1), count);
}

void AudioSampleWidgetPrivate::scrollBy(double count)
{
    q->showFrames(firstFrame + count, visibleFrames);
}

/// Moves the end of the selection, for keys.
void AudioSampleWidgetPrivate::moveEdge(int step)
{
    const int start = selection.isEmpty() ? int(firstFrame) : selection.first;
    const int count = (selection.isEmpty() ? 0 : selection.count) + step;
    q->setSelection({start, qMax(count, 0)});
}

AudioSampleWidget::AudioSampleWidget(QWidget* parent)
    : QWidget(parent), d(std::make_unique<AudioSampleWidgetPrivate>(this))
{
    setFocusPolicy(Qt::StrongFocus);
    d->recalculate();
}

AudioSampleWidget::~AudioSampleWidget()
{
    d->player.disconnect(this);
}

void AudioSampleWidget::setSample(const SoundSample& sample)
{
    d->setPending(sample, {});
}

void AudioSampleWidget::setSample(const SampleInfo& info, const std::function<QByteArray()>& reader)
{
    SoundSample sample;
    static_cast<SampleInfo&>(sample) = info;
    d->setPending(sample, reader);
}

const SoundSample& AudioSampleWidget::sample() const
{
    return d->sample;
}

void AudioSampleWidget::showNow()
{
    if (d->pendingReader) {
        // If a worker thread is already reading, wait for its result.
        d->pending.data = d->loadTimer.isActive() ? d->pendingReader() : d->reading.result();
        d->pendingReader = {};
        d->load();
    } else if (d->loadTimer.isActive()) {
        d->load();
    }
}

void AudioSampleWidget::play(bool loop)
{
    showNow();
    d->player.play(loop);
}

void AudioSampleWidget::pause()
{
    d->player.pause();
}

void AudioSampleWidget::resume()
{
    d->player.resume();
}

void AudioSampleWidget::stop()
{
    d->player.stop();
}

void AudioSampleWidget::setLooping(bool isLooping)
{
    d->player.setLooping(isLooping);
}

SoundSample::State AudioSampleWidget::currentState() const
{
    return d->player.state();
}

int AudioSampleWidget::position() const
{
    return d->player.position();
}

QString AudioSampleWidget::problem() const
{
    return d->player.problem();
}

void AudioSampleWidget::setShowsTrueChannels(bool isTrue)
{
    d->trueChannels = isTrue;
    update();
}

bool AudioSampleWidget::showsTrueChannels() const
{
    return d->trueChannels;
}

double AudioSampleWidget::firstFrame() const
{
    return d->firstFrame;
}

double AudioSampleWidget::visibleFrames() const
{
    return d->visibleFrames;
}

void AudioSampleWidget::showFrames(double first, double count)
{
    const double all = d->frames;
    d->visibleFrames = qBound(qMin(LeastVisible, all), count, all);
    d->firstFrame = qBound(0.0, first, all - d->visibleFrames);
    d->recalculate();
}

void AudioSampleWidget::zoomActual()
{
    showFrames(0, d->frames);
}

void AudioSampleWidget::zoomIn()
{
    d->zoom(ZoomStep, width() / 2.0);
}

void AudioSampleWidget::zoomOut()
{
    d->zoom(1 / ZoomStep, width() / 2.0);
}

SoundRange AudioSampleWidget::selection() const
{
    return d->selection;
}

void AudioSampleWidget::setSelection(SoundRange range)
{
    const int first = qBound(0, range.first, d->frames);
    const int count =
        int(qBound<qint64>(0, qint64(range.first) + range.count - first, d->frames - first));
    const SoundRange now = count > 0 ? SoundRange{first, count} : SoundRange();
    if (now != d->selection) {
        d->selection = now;
        update();
        emit selectionChanged();
    }
}

QSize AudioSampleWidget::sizeHint() const
{
    return {600, 230};
}

QSize AudioSampleWidget::minimumSizeHint() const
{
    return {80, 80};
}

void AudioSampleWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    d->paint(&painter, event->rect());
}

void AudioSampleWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->recalculate();
}

void AudioSampleWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || d->frames == 0) {
        QWidget::mousePressEvent(event);
        return;
    }
    const int frame = d->frameAt(event->x());
    const SoundRange old = d->selection;
    const int end = old.first + old.count;
    if (event->modifiers() & Qt::ShiftModifier && !old.isEmpty()) {
        const bool isFirstNearer = std::abs(frame - old.first) < std::abs(frame - end);
        d->anchor = isFirstNearer ? end : old.first;
        mouseMoveEvent(event);
    } else {
        d->anchor = frame;
        setSelection({});
    }
}

void AudioSampleWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (d->anchor >= 0) {
        const int frame = d->frameAt(event->x());
        setSelection({qMin(frame, d->anchor), std::abs(frame - d->anchor)});
    }
}

void AudioSampleWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        mouseMoveEvent(event);
        d->anchor = -1;
    }
}

void AudioSampleWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        d->anchor = -1;
        setSelection({0, d->frames});
    }
}

void AudioSampleWidget::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const bool isAside = turned.x() != 0 || event->modifiers() & Qt::ShiftModifier;
    const double steps = (turned.x() != 0 ? turned.x() : turned.y()) / WheelStep;
    if (isAside) {
        d->scrollBy(-steps * ScrollPart * d->visibleFrames);
    } else {
        d->zoom(std::pow(ZoomStep, steps), event->position().x());
    }
    event->accept();
}

void AudioSampleWidget::keyPressEvent(QKeyEvent* event)
{
    const bool selects = event->modifiers() & Qt::ShiftModifier;
    const double step = ScrollPart * d->visibleFrames;
    const int edge = qMax(int(std::ceil(d->framesPerPixel)), 1);
    switch (event->key()) {
    case Qt::Key_Left:
        selects ? d->moveEdge(-edge) : d->scrollBy(-step);
        break;
    case Qt::Key_Right:
        selects ? d->moveEdge(edge) : d->scrollBy(step);
        break;
    case Qt::Key_Home:
        d->scrollBy(-d->frames);
        break;
    case Qt::Key_End:
        d->scrollBy(d->frames);
        break;
    case Qt::Key_Plus:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

}  // namespace Zorv
