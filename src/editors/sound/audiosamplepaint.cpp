#include "editors/sound/audiosamplewidget_p.h"
#include "media/pcmsamples_p.h"

#include <QPainter>

#include <cmath>

namespace Zorv {

namespace {

const QColor waveColor(185, 175, 55);
const QColor lineColor(Qt::yellow);
const QColor clipColor(220, 40, 40);
const QColor levelColor(70, 170, 70);

constexpr int ClipHeight = 4;       // pixels
constexpr int LevelHeight = 10;     // pixels
constexpr int MostStrips = 256;     // further strips would be thinner than a pixel
constexpr double LevelTime = 0.05;  // seconds
constexpr double SelectedPart = 0.35;

/// 20-bit samples are the upper bits of 24.
qint64 levelsOf(int bits)
{
    return Q_INT64_C(1) << (bits == 20 ? 24 : bits);
}

/// True if a value is the smallest or largest possible number.
bool isClipped(const WavePyramid::Extremes& found, int bits)
{
    const qint64 most = levelsOf(bits) / 2 - 1;
    return found.greatest >= most || found.least <= -most - 1;
}

/// -0.5 to 0.5.
double heightOf(qint32 value, int bits)
{
    return value / double(levelsOf(bits));
}

}  // namespace

int AudioSampleWidgetPrivate::lineX() const
{
    const int position = player.position();
    if (position < 0 || frames == 0 || visibleFrames <= 0) {
        return -1;
    }
    const int width = q->width();
    if (visibleFrames >= frames) {
        const int x = int(qint64(position) * width / frames) - 1;
        return x > width ? 0 : x;
    }
    return int(qBound(-10.0, xOf(position) - 1, width + 10.0));
}

QRect AudioSampleWidgetPrivate::levelPlace() const
{
    return {0, q->height() - RoomBelowStrips + 2, q->width(), LevelHeight};
}

void AudioSampleWidgetPrivate::paint(QPainter* painter, const QRect& part)
{
    painter->fillRect(part, q->palette().color(QPalette::Window));
    if (frames > 0) {
        paintSelection(painter);
        painter->setPen(QPen(waveColor, 1.0));
        const int strips = shape ? qMin<int>(sample.channels, MostStrips) : 0;
        for (int channel = 0; channel < strips; ++channel) {
            paintChannel(painter, channel, part.left(), part.right() + 1);
        }
        if (player.position() >= 0) {
            painter->setPen(QPen(lineColor, 3.0));
            painter->drawLine(lineX(), 0, lineX(), q->height());
        }
        paintLevels(painter);
    }
    paintProblem(painter);
}

void AudioSampleWidgetPrivate::paintSelection(QPainter* painter) const
{
    if (!selection.isEmpty()) {
        QColor color = q->palette().color(QPalette::Highlight);
        color.setAlphaF(SelectedPart);
        const double left = qMax(xOf(selection.first), -1.0);
        const double right = qMin(xOf(selection.first + selection.count), q->width() + 1.0);
        painter->fillRect(QRectF(left, 0, qMax(right - left, 1.0), q->height() - RoomBelowStrips),
                          color);
    }
}

/// Without `trueChannels`, each strip shows the first channel, one frame later than the strip
/// above.
void AudioSampleWidgetPrivate::paintChannel(QPainter* painter, int channel, int left, int right)
{
    const double centre = channelHeight / 2 + channel * channelHeight;
    const int count = pixelsPerFrame >= 1 ? framePoints(painter, channel, centre, left, right)
                                          : pixelPoints(painter, channel, centre, left, right);
    painter->drawPolyline(points.constData(), count);
}

/// One point per frame, plus one beyond each edge.
int AudioSampleWidgetPrivate::framePoints(QPainter* painter, int channel, double centre, int left,
                                          int right)
{
    const double markWidth = qBound(1.0, pixelsPerFrame, double(ClipHeight));
    const int shift = trueChannels ? 0 : channel;
    const int from = trueChannels ? channel : 0;
    int frame = qMax(int(firstFrame + left * framesPerPixel) - 1, 0);
    int count = 0;
    for (; frame + shift < frames && count < points.size(); ++frame) {
        const double x = xOf(frame);
        const qint32 value = shape->value(frame + shift, from);
        points[count++] = {x, centre + heightOf(value, sample.bits) * channelHeight / 2};
        if (isClipped({value, value}, sample.bits)) {
            painter->fillRect(QRectF(x, centre - channelHeight / 2, markWidth, ClipHeight),
                              clipColor);
        }
        if (x > right) {
            break;
        }
    }
    return count;
}

/// Two points per pixel: minimum and maximum.
int AudioSampleWidgetPrivate::pixelPoints(QPainter* painter, int channel, double centre, int left,
                                          int right)
{
    const int shift = trueChannels ? 0 : channel;
    const int from = trueChannels ? channel : 0;
    const double top = centre - channelHeight / 2;
    int count = 0;
    for (int x = qMax(left - 1, 0); x <= right && count + 1 < points.size(); ++x) {
        const int first = int(firstFrame + x * framesPerPixel);
        if (first + shift >= frames) {
            break;
        }
        const int end = qMax(int(firstFrame + (x + 1) * framesPerPixel), first + 1);
        const WavePyramid::Extremes found = shape->extremes(from, first + shift, end + shift);
        for (const qint32 value : {found.least, found.greatest}) {
            points[count++] = {double(x),
                               centre + heightOf(value, sample.bits) * channelHeight / 2};
        }
        if (isClipped(found, sample.bits)) {
            painter->fillRect(QRectF(x, top, 1, ClipHeight), clipColor);
        }
    }
    return count;
}

/// The level of what is heard at the moment.
void AudioSampleWidgetPrivate::paintLevels(QPainter* painter) const
{
    const int position = player.position();
    const bool isPlaying =
        player.state() == SoundSample::PlayingState || player.state() == SoundSample::LoopingState;
    if (!isPlaying || position < 0 || !shape) {
        return;
    }
    const QRect place = levelPlace();
    const double height = double(place.height()) / sample.channels;
    const int first = position - int(sample.sampleRate * LevelTime);
    for (int channel = 0; channel < sample.channels; ++channel) {
        const WavePyramid::Extremes found = shape->extremes(channel, first, position + 1);
        const double most =
            qMax(heightOf(found.greatest, sample.bits), -heightOf(found.least, sample.bits));
        painter->fillRect(QRectF(0, place.top() + channel * height, 2 * most * place.width(),
                                 qMax(height - 1, 1.0)),
                          isClipped(found, sample.bits) ? clipColor : levelColor);
    }
}

void AudioSampleWidgetPrivate::paintProblem(QPainter* painter) const
{
    if (!player.problem().isEmpty()) {
        const QRect place(0, q->height() - RoomBelowStrips, q->width(), RoomBelowStrips / 2);
        painter->setPen(q->palette().color(QPalette::WindowText));
        painter->drawText(
            place.adjusted(4, 0, -4, 0), Qt::AlignLeft | Qt::AlignVCenter,
            q->fontMetrics().elidedText(player.problem(), Qt::ElideRight, place.width() - 8));
    }
}

}  // namespace Zorv
