#pragma once

#include "editors/sound/soundoutput.h"
#include "media/soundconversion.h"

#include <QFutureWatcher>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace Zorv {

class SampleStream;

/// Plays one sound at a time. The device stays open from one sound to the next of the same form.
/// Where it does not take the form, a copy of the samples is converted for it when it is to play.
class SoundPlayer : public QObject
{
    Q_OBJECT

public:
    explicit SoundPlayer(QObject* parent = nullptr);
    ~SoundPlayer() override;

    /// Stops, and takes another sound; an empty one for none.
    void setSound(const SoundSample& sound);

    void play(bool loop);
    void pause();
    void resume();
    void stop();

    /// Also while it plays.
    void setLooping(bool isLooping);

    SoundSample::State state() const;

    /// The frame of the sound that the device reads next; negative without a device.
    int position() const;

    /// Why nothing is heard, or not yet, in words for the person; empty if all is well.
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
    SampleInfo m_form;  // that is played
    QPointer<SoundOutput> m_output;
    SampleStream* m_stream;
    bool m_hasBytes = false;  // the stream has the sound
    QString m_problem;
    QFutureWatcher<SoundConversion> m_conversion;
    QTimer m_notice;  // of a conversion that takes long
    std::shared_ptr<std::atomic<bool>> m_isCanceled;
};

}  // namespace Zorv
