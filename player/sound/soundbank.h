#pragma once

#include <zorv/media/soundsample.h>

#include <QCoreApplication>
#include <QFuture>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <memory>

namespace Player {

/// The sounds of a match, converted to the format of the mixer.
///
/// A worker thread converts them one after the other. A sound is silent until it is converted, or
/// if it is missing. Main thread only.
class SoundBank
{
    Q_DECLARE_TR_FUNCTIONS(Player::SoundBank)

public:
    SoundBank();

    /// Cancels the conversion.
    ~SoundBank();

    /// Adds sounds of a sound file; `ids` are "GROUP,NUMBER" as numbers. Use `keyOf()` to find
    /// them. Missing sounds are reported in `notes()`.
    void addFile(int owner, const QString& path, const QVector<quint32>& ids);

    /// Adds a WAV file as the sound of a key.
    void addWave(quint64 key, const QString& path);

    /// Converts everything that was added, to `sampleRate` frames a second.
    void convert(int sampleRate);

    /// The samples of a sound; empty if it does not exist or is not converted yet.
    QByteArray find(quint64 key) const;

    /// The sample rate of a sound in its file; 0 if it does not exist.
    int rateOf(quint64 key) const;

    /// The key of a sound of an owner.
    static quint64 keyOf(int owner, int group, int number);

    QStringList notes() const { return m_notes; }

    /// Returns when everything is converted.
    void waitForFinished() { m_future.waitForFinished(); }

private:
    struct Item
    {
        Zorv::SoundSample source;
        QByteArray samples;
        std::atomic<bool> isReady{false};
    };

    QHash<quint64, std::shared_ptr<Item>> m_items;
    std::atomic<bool> m_isCanceled{false};
    QFuture<void> m_future;
    QStringList m_notes;
};

}  // namespace Player
