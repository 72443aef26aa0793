#include "editors/sound/soundoutput.h"

#include "editors/sound/floatstream_p.h"
#include "editors/sound/playableform_p.h"

#include <QAudioDeviceInfo>
#include <QAudioOutput>

namespace Zorv {

namespace {

constexpr int NotifyInterval = 10;  // milliseconds

QAudioFormat audioFormatOf(const PlayableForm& form)
{
    QAudioFormat format;
    format.setSampleRate(form.info.sampleRate);
    format.setChannelCount(form.info.channels);
    format.setSampleSize(form.info.bits);
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setSampleType(form.isFloat          ? QAudioFormat::Float
                         : form.info.bits == 8 ? QAudioFormat::UnSignedInt
                                               : QAudioFormat::SignedInt);
    return format;
}

class QtSoundOutput : public SoundOutput
{
public:
    QtSoundOutput(const PlayableForm& form, QObject* parent)
        : SoundOutput(parent), m_isFloat(form.isFloat), m_output(audioFormatOf(form))
    {
        m_output.setNotifyInterval(NotifyInterval);
        connect(&m_output, &QAudioOutput::notify, this, &SoundOutput::notify);
        connect(&m_output, &QAudioOutput::stateChanged, this, &SoundOutput::stateChanged);
    }

    void start(QIODevice* stream) override
    {
        m_floats.setSource(stream);
        m_output.start(m_isFloat ? &m_floats : stream);
    }
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
    bool m_isFloat;
    FloatStream m_floats;
    QAudioOutput m_output;
};

class QtSoundSystem : public SoundSystem
{
public:
    SampleInfo playableForm(const SampleInfo& form, QString* problem) override
    {
        const QAudioDeviceInfo device = QAudioDeviceInfo::defaultOutputDevice();
        if (device.isNull()) {
            return {};
        }
        const PlayableForm found = nearest(device, form);
        if (found.info.channels == 0) {
            *problem = SoundOutput::tr(
                           "Nothing is heard: the sound device '%1' takes no samples of 8, 16, 24 "
                           "or 32 bits, nor floats. Choose another one in the system's settings.")
                           .arg(device.deviceName());
        }
        return found.info;
    }

    SoundOutput* open(const SampleInfo& form, QObject* parent) override
    {
        const QAudioDeviceInfo device = QAudioDeviceInfo::defaultOutputDevice();
        const bool isPlain = device.isFormatSupported(audioFormatOf({form, false}));
        const bool isFloat = !isPlain && device.isFormatSupported(audioFormatOf({form, true}));
        return new QtSoundOutput({form, isFloat}, parent);
    }

private:
    static PlayableForm nearest(const QAudioDeviceInfo& device, const SampleInfo& form)
    {
        const QAudioFormat near = device.nearestFormat(audioFormatOf({form, false}));
        SampleInfo offered;
        offered.channels = quint16(qBound(0, near.channelCount(), 0xffff));
        offered.sampleRate = near.sampleRate();
        return playableFormOf(form, offered, [&device](const PlayableForm& each) {
            return device.isFormatSupported(audioFormatOf(each));
        });
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
