#pragma once

#include "media/soundedits.h"
#include "zorv_export.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Zorv {

class AudioSampleWidgetPrivate;

/// The waveform of a sound, one strip per channel, with playback.
///
/// Mouse: dragging selects a part, Shift moves the nearer edge, a double click selects everything,
/// a click nothing. The wheel zooms at the pointer; with Shift it scrolls. Keys: Plus, Minus, Left,
/// Right, Home and End zoom and scroll; Shift with Left and Right changes the selection. Clipped
/// samples, at the ends of their range, are marked at the top of their strip. Below the strips are
/// the playback level, a scroll bar, and the reason if nothing is heard.
///
/// Painting costs the same however long the sound is. Main thread only.
class ZORV_EXPORT AudioSampleWidget : public QWidget
{
    Q_OBJECT

public:
    explicit AudioSampleWidget(QWidget* parent = nullptr);
    ~AudioSampleWidget() override;

    /// Stops, and shows another sound 150 ms after the last such call, so that stepping through
    /// sounds does not wait for each. A sound with the same form and length keeps selection and
    /// zoom.
    void setSample(const SoundSample& sample);

    /// The same for samples that `reader` returns. It is called in a worker thread when the sound
    /// is about to be shown.
    void setSample(const SampleInfo& info, const std::function<QByteArray()>& reader);

    /// Shows a pending sound at once.
    void showNow();

    /// The sound that is shown now.
    const SoundSample& sample() const;

    /// Plays from the start; shows a pending sound first. Does nothing while it plays, or without a
    /// sound device.
    void play(bool loop);
    void pause();
    void resume();
    void stop();

    /// Whether playback starts over at the end. Can be changed during playback.
    void setLooping(bool isLooping);
    SoundSample::State currentState() const;

    /// The next frame to be played; negative without a sound device.
    int position() const;

    /// Why nothing is heard, or not yet, as a text for the user; empty if all is well.
    QString problem() const;

    /// By default every strip shows the first channel, one frame later than the strip above. With
    /// true each strip shows its own channel.
    void setShowsTrueChannels(bool isTrue);
    bool showsTrueChannels() const;

    /// @name The visible part of the sound, in frames
    /// @{
    double firstFrame() const;
    double visibleFrames() const;

    /// Clamped to the sound; at least 8 frames, or all of a shorter sound.
    void showFrames(double first, double count);
    void zoomActual();  ///< the whole sound
    void zoomIn();
    void zoomOut();
    /// @}

    /// In frames; empty for none. Clamped to the sound.
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
