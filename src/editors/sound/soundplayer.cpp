#include "editors/sound/soundplayer_p.h"

#include "editors/sound/samplestream_p.h"
#include "media/pcmsamples_p.h"

#include <QtConcurrent>

// setSound() looks for the playable form closest to the sound's, and opens a device for it. If the
// device takes the samples as they are, the stream gets them at once. Otherwise play() first
// converts a copy in a worker thread and starts when it is done. A notice appears only if that
// takes longer than `NoticeDelay`. Another sound or stop() cancels the conversion.

namespace Zorv {

namespace {

constexpr int NoticeDelay = 200;  // milliseconds without a notice

}  // namespace

SoundPlayer::SoundPlayer(QObject* parent) : QObject(parent), m_stream(new SampleStream(this))
{
    connect(&m_conversion, &QFutureWatcherBase::finished, this, &SoundPlayer::takeConverted);
    m_notice.setSingleShot(true);
    m_notice.setInterval(NoticeDelay);
    connect(&m_notice, &QTimer::timeout, this, [this] {
        tell(tr("The sound is being converted to a form that the sound device takes."));
    });
}

SoundPlayer::~SoundPlayer()
{
    cancelConversion();
    if (m_output) {
        m_output->disconnect(this);
        m_output->stop();
        delete m_output;
    }
}

void SoundPlayer::setSound(const SoundSample& sound)
{
    stop();
    const bool isSame = isSameForm(sound, m_sound);
    m_sound = sound;
    m_hasBytes = false;
    if (!isSame || !m_output) {
        close();
        open();
    } else {
        tell({});
    }
    if (m_output && isSameForm(m_form, m_sound)) {
        const int frames = wholeFramesOf(m_sound, m_sound.data);
        m_stream->setBytes(m_sound.data.left(frames * frameBytesOf(m_sound)));
        m_hasBytes = true;
    } else {
        m_stream->setBytes({});
    }
}

/// Opens no device for a sound without frames.
void SoundPlayer::open()
{
    if (wholeFramesOf(m_sound, m_sound.data) == 0 || m_sound.sampleRate <= 0 ||
        !withSampleBytes(m_sound.bits, [](auto) {})) {
        const bool isNone = m_sound.data.isEmpty() && m_sound.frames <= 0;
        tell(isNone ? QString() : tr("This sound has no form that can be played."));
        return;
    }
    QString problem;
    m_form = SoundSystem::instance()->playableForm(m_sound, &problem);
    if (m_form.channels == 0) {
        tell(!problem.isEmpty()
                 ? problem
                 : tr("Nothing is heard: there is no sound device. Connect one, and play again."));
        return;
    }
    m_output = SoundSystem::instance()->open(m_form, this);
    connect(m_output, &SoundOutput::stateChanged, this, &SoundPlayer::outputChanged);
    connect(m_output, &SoundOutput::notify, this, &SoundPlayer::moved);
    tell({});
}

/// The output may be in the middle of emitting a signal, so delete it later.
void SoundPlayer::close()
{
    if (m_output) {
        m_output->disconnect(this);
        m_output->stop();
        m_output->deleteLater();
        m_output = nullptr;
    }
}

/// If there was no device, tries again: it may be connected now.
void SoundPlayer::play(bool loop)
{
    if (!m_output && !m_problem.isEmpty()) {
        setSound(SoundSample(m_sound));
    }
    if (!m_output || m_output->state() == SoundOutput::Active) {
        return;
    }
    m_stream->setLooping(loop);
    if (m_hasBytes) {
        start();
    } else {
        convert();
    }
}

void SoundPlayer::start()
{
    const QPointer<SoundOutput> output = m_output;
    output->stop();
    m_stream->rewind();
    if (output) {
        output->start(m_stream);
    }
    if (output && output == m_output && output->state() == SoundOutput::Stopped &&
        output->hasFailed()) {
        outputChanged();
    }
}

void SoundPlayer::convert()
{
    if (m_conversion.isRunning()) {
        return;
    }
    m_isCanceled = std::make_shared<std::atomic<bool>>(false);
    m_notice.start();
    m_conversion.setFuture(
        QtConcurrent::run([sound = m_sound, form = m_form, isCanceled = m_isCanceled] {
            return convertSound(sound, form, isCanceled.get());
        }));
}

void SoundPlayer::cancelConversion()
{
    m_notice.stop();
    if (m_isCanceled) {
        *m_isCanceled = true;
        m_isCanceled.reset();
        tell({});
    }
    m_conversion.setFuture({});
}

void SoundPlayer::takeConverted()
{
    if (!m_output || !m_isCanceled || m_conversion.future().resultCount() == 0) {
        return;
    }
    const SoundConversion result = m_conversion.result();
    m_isCanceled.reset();
    m_notice.stop();
    tell({});
    if (result.outcome == SoundConversion::Done) {
        m_stream->setBytes(result.sample.data);
        m_hasBytes = true;
        start();
    } else {
        tell(soundConversionText(result.outcome));
    }
}

void SoundPlayer::pause()
{
    if (m_output) {
        m_output->suspend();
    }
}

void SoundPlayer::resume()
{
    if (m_output) {
        m_output->resume();
    }
}

void SoundPlayer::stop()
{
    cancelConversion();
    if (m_output) {
        m_output->stop();
        m_stream->rewind();
    }
}

void SoundPlayer::setLooping(bool isLooping)
{
    if (m_stream->isLooping() == isLooping) {
        return;
    }
    m_stream->setLooping(isLooping);
    if (m_output && m_output->state() == SoundOutput::Active) {
        emit stateChanged(state());
    }
}

SoundSample::State SoundPlayer::state() const
{
    switch (m_output ? m_output->state() : SoundOutput::Stopped) {
    case SoundOutput::Suspended:
        return SoundSample::PausedState;
    case SoundOutput::Stopped:
        return SoundSample::StoppedState;
    default:
        return m_stream->isLooping() ? SoundSample::LoopingState : SoundSample::PlayingState;
    }
}

int SoundPlayer::position() const
{
    const int bytes = frameBytesOf(m_form);
    if (!m_output || bytes == 0 || m_form.sampleRate <= 0) {
        return -1;
    }
    return int(qint64(m_stream->place() / bytes) * m_sound.sampleRate / m_form.sampleRate);
}

/// A device is also idle after a buffer underrun. Only at the end of the sound is idle the end of
/// playback.
void SoundPlayer::outputChanged()
{
    if (!m_output) {
        return;
    }
    const bool isIdle = m_output->state() == SoundOutput::Idle;
    if (isIdle && m_stream->isAtEnd()) {
        m_stream->rewind();
        m_output->stop();
        emit moved();
    }
    if (isIdle) {
        return;
    }
    if (m_output->state() == SoundOutput::Stopped && m_output->hasFailed()) {
        close();
        tell(tr("Nothing is heard: the sound device could not be opened, or has gone. Connect it, "
                "and play again."));
        emit stateChanged(SoundSample::StoppedState);
        return;
    }
    if (m_output->state() == SoundOutput::Active) {
        tell({});
    }
    emit stateChanged(state());
}

void SoundPlayer::tell(const QString& problem)
{
    if (problem != m_problem) {
        m_problem = problem;
        emit problemChanged();
    }
}

}  // namespace Zorv
