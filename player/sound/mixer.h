#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QVector>

namespace Player {

/// Sounds at once, as one stream without end for a sound device: two channels of 16 bits.
///
/// What is too loud together is cut off; the oldest sound gives way to one too many. Silence where
/// there is nothing. Main thread only.
class Mixer : public QIODevice
{
    Q_OBJECT

public:
    static constexpr int Channels = 2;
    static constexpr int MostVoices = 32;

    /// A sound that is played again and again between two frames; the last one belongs to it.
    struct Loop
    {
        int first = 0;
        int last = -1;  ///< -1 for the end
    };

    explicit Mixer(QObject* parent = nullptr);

    /// Plays samples once, in so many percent of their loudness.
    void play(const QByteArray& samples, int volume);

    /// Plays samples without end, from silence to their loudness in so many frames; in place of the
    /// last ones. Empty ones end it.
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
        int first = 0;  // where it begins again, if `end` is not that of the samples
        int end = 0;    // behind the last frame
        bool isLooped = false;
        int fade = 0;    // frames until it has its loudness
        int played = 0;  // up to `fade`
    };

    static bool mix(Voice* voice, QVector<qint32>* sums);

    QVector<Voice> m_voices;
    Voice m_music;
    QVector<qint32> m_sums;
};

}  // namespace Player
