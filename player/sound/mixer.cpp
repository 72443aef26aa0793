#include "sound/mixer.h"

#include <QtEndian>

#include <algorithm>

namespace Player {

namespace {

constexpr int FrameBytes = Mixer::Channels * int(sizeof(qint16));
constexpr qint64 MostBytes = 64 * 1024;  // per read: the device asks again

int framesOf(const QByteArray& samples)
{
    return samples.size() / FrameBytes;
}

}  // namespace

Mixer::Mixer(QObject* parent) : QIODevice(parent)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void Mixer::play(const QByteArray& samples, int volume)
{
    if (framesOf(samples) == 0) {
        return;
    }
    if (m_voices.size() == MostVoices) {
        m_voices.removeFirst();
    }
    Voice voice;
    voice.samples = samples;
    voice.volume = volume;
    voice.end = framesOf(samples);
    m_voices.append(voice);
}

void Mixer::playMusic(const QByteArray& samples, int volume, const Loop& loop, int fadeFrames)
{
    const int frames = framesOf(samples);
    m_music = {};
    m_music.samples = samples;
    m_music.volume = volume;
    m_music.end = loop.last >= 0 ? qMin(loop.last, frames - 1) + 1 : frames;
    m_music.first = qBound(0, loop.first, qMax(m_music.end - 1, 0));
    m_music.isLooped = m_music.end > 0;
    m_music.fade = fadeFrames;
}

qint64 Mixer::bytesAvailable() const
{
    return MostBytes + QIODevice::bytesAvailable();
}

/// Adds a voice to the sums; false when it has ended.
bool Mixer::mix(Voice* voice, QVector<qint32>* sums)
{
    const char* const samples = voice->samples.constData();
    const int frames = sums->size() / Channels;
    qint32* to = sums->data();
    for (int i = 0; i < frames; ++i, to += Channels) {
        if (voice->at >= voice->end) {
            if (!voice->isLooped) {
                return false;
            }
            voice->at = voice->first;
        }
        qint64 volume = voice->volume;
        if (voice->played < voice->fade) {
            volume = volume * voice->played++ / voice->fade;
        }
        const char* const from = samples + qint64(voice->at++) * FrameBytes;
        to[0] += qint32(qFromLittleEndian<qint16>(from) * volume / 100);
        to[1] += qint32(qFromLittleEndian<qint16>(from + sizeof(qint16)) * volume / 100);
    }
    return true;
}

qint64 Mixer::readData(char* data, qint64 maxSize)
{
    const int frames = int(qMin(maxSize, MostBytes) / FrameBytes);
    m_sums.fill(0, frames * Channels);
    if (m_music.isLooped) {
        mix(&m_music, &m_sums);
    }
    m_voices.erase(std::remove_if(m_voices.begin(), m_voices.end(),
                                  [this](Voice& voice) { return !mix(&voice, &m_sums); }),
                   m_voices.end());
    for (int i = 0; i < m_sums.size(); ++i) {
        const qint32 sum = qBound(-0x8000, m_sums.at(i), 0x7fff);
        qToLittleEndian(qint16(sum), data + i * qint64(sizeof(qint16)));
    }
    return qint64(frames) * FrameBytes;
}

qint64 Mixer::writeData(const char*, qint64)
{
    return -1;
}

}  // namespace Player
