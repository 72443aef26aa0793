#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QVector>

namespace Player {

/// Mixes several sounds into an endless stream for a sound device: two channels of 16 bits.
///
/// A sum that is too loud is clipped. If there are too many sounds, the oldest one is dropped.
/// Without sounds the stream is silent. Main thread only.
class Mixer : public QIODevice
{
    Q_OBJECT

public:
    static constexpr int Channels = 2;
    static constexpr int MostVoices = 32;

    /// A part of a sound that repeats, from `first` to `last` inclusive, in frames.
    struct Loop
    {
        int first = 0;
        int last = -1;  ///< -1 for the end
    };

    explicit Mixer(QObject* parent = nullptr);

    /// Plays samples once, at `volume` percent.
    void play(const QByteArray& samples, int volume);

    /// Plays samples in an endless loop, fading in over `fadeFrames` frames. Replaces the current
    /// music. Empty samples stop it.
    void playMusic(const QByteArray& samples, int volume, const Loop& loop, int fadeFrames);

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    struct Voice
    {
        QByteArray samples;
        int volume = 100;
        int at = 0;     // the next frame
        int first = 0;  // start of the loop, if `end` is before the end of the samples
        int end = 0;    // after the last frame
        bool isLooped = false;
        int fade = 0;    // length of the fade-in in frames
        int played = 0;  // frames played, up to `fade`
    };

    static bool mix(Voice* voice, QVector<qint32>* sums);

    QVector<Voice> m_voices;
    Voice m_music;
    QVector<qint32> m_sums;
};

}  // namespace Player
