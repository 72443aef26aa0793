#pragma once

#include "media/soundedits.h"
#include "zorv_export.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Zorv {

class AudioSampleWidgetPrivate;

/// The waveform of a sound, a strip for each channel, which it also plays.
///
/// A part can be selected with the mouse: a press and a move select, Shift moves the nearer edge, a
/// double click takes all, a click nothing. The wheel zooms about the pointer, with Shift it
/// scrolls; so do the keys Plus, Minus, Left, Right, Home and End, and with Shift Left and Right
/// change the selection. Samples at the ends of their range are marked at the top of their strip.
/// Below the strips are the level of what plays, a bar to scroll, and why nothing is heard.
///
/// What it costs to paint does not depend on how long the sound is. Main thread only.
class ZORV_EXPORT AudioSampleWidget : public QWidget
{
    Q_OBJECT

public:
    explicit AudioSampleWidget(QWidget* parent = nullptr);
    ~AudioSampleWidget() override;

    /// Stops, and shows another sound, 150 ms after the last such call: who steps through sounds
    /// does not wait for each. One of the same form and length keeps selection and zoom.
    void setSample(const SoundSample& sample);

    /// The same for samples that `reader` gives: it is called in another thread, once the sound is
    /// to be shown.
    void setSample(const SampleInfo& info, const std::function<QByteArray()>& reader);

    /// Shows a sound that waits to be shown.
    void showNow();

    /// The sound that is shown.
    const SoundSample& sample() const;

    /// Plays from the start; a sound that waits to be shown is shown first. Nothing while it plays,
    /// or without a sound device.
    void play(bool loop);
    void pause();
    void resume();
    void stop();

    /// Whether it starts over at the end, also while it plays.
    void setLooping(bool isLooping);
    SoundSample::State currentState() const;

    /// The frame that is played next; negative without a sound device.
    int position() const;

    /// Why nothing is heard, or not yet, in words for the person; empty if all is well.
    QString problem() const;

    /// At first each strip shows the first channel, a frame later than the strip above it; true
    /// shows in each its own channel.
    void setShowsTrueChannels(bool isTrue);
    bool showsTrueChannels() const;

    /// @name What is seen of the sound, in frames
    /// @{
    double firstFrame() const;
    double visibleFrames() const;

    /// Cut to the sound; no fewer than 8 frames, or all of a shorter sound.
    void showFrames(double first, double count);
    void zoomActual();  ///< all of it
    void zoomIn();
    void zoomOut();
    /// @}

    /// In frames; empty for none. Cut to the sound.
    SoundRange selection() const;
    void setSelection(SoundRange range);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void stateChanged(Zorv::SoundSample::State state);
    void selectionChanged();
    void problemChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<AudioSampleWidgetPrivate> d;
};

}  // namespace Zorv
