#include "editors/sound/soundoutput.h"

#include "media/soundsample.h"

#include <QAudioDeviceInfo>
#include <QAudioOutput>

namespace Zorv {

namespace {

constexpr int NotifyInterval = 10;  // milliseconds

QAudioFormat formatOf(const SampleInfo& form)
{
    QAudioFormat format;
    format.setSampleRate(form.sampleRate);
    format.setChannelCount(form.channels);
    format.setSampleSize(form.bits);
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setSampleType(form.bits == 8 ? QAudioFormat::UnSignedInt : QAudioFormat::SignedInt);
    return format;
}

class QtSoundOutput : public SoundOutput
{
public:
    QtSoundOutput(const SampleInfo& form, QObject* parent)
        : SoundOutput(parent), m_output(formatOf(form))
    {
        m_output.setNotifyInterval(NotifyInterval);
        connect(&m_output, &QAudioOutput::notify, this, &SoundOutput::notify);
        connect(&m_output, &QAudioOutput::stateChanged, this, &SoundOutput::stateChanged);
    }

    void start(QIODevice* stream) override { m_output.start(stream); }
    void stop() override { m_output.stop(); }
    void suspend() override { m_output.suspend(); }
    void resume() override { m_output.resume(); }

    State state() const override
    {
        switch (m_output.state()) {
        case QAudio::ActiveState:
            return Active;
        case QAudio::SuspendedState:
        case QAudio::InterruptedState:
            return Suspended;
        case QAudio::IdleState:
            return Idle;
        default:
            return Stopped;
        }
    }

    bool hasFailed() const override
    {
        return m_output.error() != QAudio::NoError && m_output.error() != QAudio::UnderrunError;
    }

private:
    QAudioOutput m_output;
};

class QtSoundSystem : public SoundSystem
{
public:
    SampleInfo playableForm(const SampleInfo& form) override
    {
        const QAudioDeviceInfo device = QAudioDeviceInfo::defaultOutputDevice();
        const QAudioFormat wanted = formatOf(form);
        if (device.isNull()) {
            return {};
        }
        if (device.isFormatSupported(wanted)) {
            return form;
        }
        const QAudioFormat near = device.nearestFormat(wanted);
        SampleInfo result;
        result.channels = quint16(qMax(near.channelCount(), 0));
        result.bits = quint16(qMax(near.sampleSize(), 0));
        result.sampleRate = near.sampleRate();
        const bool isOurs = near.isValid() && near == formatOf(result);
        return isOurs ? result : SampleInfo();
    }

    SoundOutput* open(const SampleInfo& form, QObject* parent) override
    {
        return new QtSoundOutput(form, parent);
    }
};

SoundSystem* installed = nullptr;

}  // namespace

SoundSystem::~SoundSystem() = default;

SoundSystem* SoundSystem::instance()
{
    static QtSoundSystem qt;
    return installed ? installed : &qt;
}

void SoundSystem::setInstance(SoundSystem* system)
{
    installed = system;
}

}  // namespace Zorv
