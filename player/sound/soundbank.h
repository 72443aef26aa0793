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

/// Sounds of a match in the one form that they are mixed in.
///
/// They are converted in another thread, a sound after the other; until then they are silent, as
/// are those that are missing. Main thread only.
class SoundBank
{
    Q_DECLARE_TR_FUNCTIONS(Player::SoundBank)

public:
    SoundBank();

    /// Ends the conversion.
    ~SoundBank();

    /// Takes some sounds of a sound file, by "GROUP,NUMBER" as numbers; see `keyOf()`. What is
    /// missing is told in `notes()`.
    void addFile(int owner, const QString& path, const QVector<quint32>& ids);

    /// Takes a WAV file as the sound of a key.
    void addWave(quint64 key, const QString& path);

    /// Converts all that was added, to so many frames a second.
    void convert(int sampleRate);

    /// The samples of a sound; empty if it is not there, or not yet.
    QByteArray find(quint64 key) const;

    /// The frames a second that a sound has in its file; 0 if it is not there.
    int rateOf(quint64 key) const;

    /// What a sound of an owner is called by.
    static quint64 keyOf(int owner, int group, int number);

    QStringList notes() const { return m_notes; }

    /// Returns when all has been converted.
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
