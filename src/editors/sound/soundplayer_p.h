#pragma once

#include "editors/sound/soundoutput.h"
#include "media/soundconversion.h"

#include <QFutureWatcher>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace Zorv {

class SampleStream;

/// Plays one sound at a time. The device stays open between sounds of the same form. If the device
/// does not accept the form, a copy of the samples is converted before playback.
class SoundPlayer : public QObject
{
    Q_OBJECT

public:
    explicit SoundPlayer(QObject* parent = nullptr);
    ~SoundPlayer() override;

    /// Stops, and switches to another sound; an empty one for none.
    void setSound(const SoundSample& sound);

    void play(bool loop);
    void pause();
    void resume();
    void stop();

    /// Can be changed during playback.
    void setLooping(bool isLooping);

    SoundSample::State state() const;

    /// The frame that the device reads next; negative without a device.
    int position() const;

    /// Why nothing is heard, or not yet, as a text for the user; empty if all is well.
    QString problem() const { return m_problem; }

signals:
    void stateChanged(Zorv::SoundSample::State state);
    void moved();
    void problemChanged();

private:
    void open();
    void close();
    void start();
    void convert();
    void takeConverted();
    void cancelConversion();
    void outputChanged();
    void tell(const QString& problem);

    SoundSample m_sound;
    SampleInfo m_form;  // the form that is played
    QPointer<SoundOutput> m_output;
    SampleStream* m_stream;
    bool m_hasBytes = false;  // the stream has the sound's bytes
    QString m_problem;
    QFutureWatcher<SoundConversion> m_conversion;
    QTimer m_notice;  // delays the notice about a long conversion
    std::shared_ptr<std::atomic<bool>> m_isCanceled;
};

}  // namespace Zorv
