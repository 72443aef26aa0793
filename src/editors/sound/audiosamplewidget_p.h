#pragma once

#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/soundplayer_p.h"
#include "editors/sound/wavepyramid_p.h"

#include <QFutureWatcher>
#include <QScrollBar>
#include <QTimer>
#include <QVector>

class QPainter;

namespace Zorv {

/// The room below the strips, in pixels.
constexpr int RoomBelowStrips = 30;

class AudioSampleWidgetPrivate
{
public:
    explicit AudioSampleWidgetPrivate(AudioSampleWidget* widget);

    // audiosamplewidget.cpp
    void setPending(const SoundSample& sample, const std::function<QByteArray()>& reader);
    void read();
    void load();
    void takeShape();
    void recalculate();
    void moved();
    void zoom(double factor, double x);
    void scrollBy(double frames);
    void moveEdge(int step);
    int frameAt(double x) const;
    double xOf(double frame) const { return (frame - firstFrame) * pixelsPerFrame; }

    // audiosamplepaint.cpp
    void paint(QPainter* painter, const QRect& part);
    void paintSelection(QPainter* painter) const;
    void paintChannel(QPainter* painter, int channel, int left, int right);
    int framePoints(QPainter* painter, int channel, double centre, int left, int right);
    int pixelPoints(QPainter* painter, int channel, double centre, int left, int right);
    void paintLevels(QPainter* painter) const;
    void paintProblem(QPainter* painter) const;
    int lineX() const;
    QRect levelPlace() const;

    AudioSampleWidget* const q;
    SoundPlayer player;
    QTimer loadTimer;
    QScrollBar bar{Qt::Horizontal};
    SoundSample pending;
    std::function<QByteArray()> pendingReader;  // reads the samples; empty if they are loaded
    QFutureWatcher<QByteArray> reading;
    SoundSample sample;
    std::shared_ptr<const WavePyramid> shape;  // null while being built
    QFutureWatcher<std::shared_ptr<const WavePyramid>> shapeWork;
    QVector<QPointF> points;
    int frames = 0;
    double firstFrame = 0;
    double visibleFrames = 0;
    double framesPerPixel = 0;
    double pixelsPerFrame = 0;
    double channelHeight = 0;
    int shownLine = -1;
    SoundRange selection;
    int anchor = -1;  // start of the selection while the mouse is pressed
    bool trueChannels = false;
};

}  // namespace Zorv
