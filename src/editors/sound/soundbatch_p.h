#pragma once

#include "media/soundconversion.h"

#include <QEventLoop>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

template <class Value>
class QFutureWatcher;

namespace Zorv {

class ProgressReporter;
class Sound;
class Sounds;

/// A sound that a worker thread has unpacked, and packed again for a collection.
struct ReadySample
{
    SoundSample sample;
    std::shared_ptr<const void> packed;  ///< see `Sounds::packer()`
};

/// Runs a reader in a worker thread and waits for it, while the window repaints but user input is
/// held back. The collections and the caller can be destroyed meanwhile.
SoundSample readElsewhere(const std::function<SoundSample()>& reader);

/// The same, and also packs the sound in the worker thread, so that storing it is cheap.
ReadySample readySample(const Sounds* to, const std::function<SoundSample()>& reader);

/// Returns a function that unpacks the sound as it is now. It can run in any thread, even if the
/// sound changes or dies meanwhile.
std::function<SoundSample()> readerOf(const Sound& sound);

/// Processes the samples of several sounds in worker threads.
///
/// The threads unpack, process and pack the samples. The main thread stores the results, one sound
/// per turn of the event loop. Only a few sounds are in work at a time. The batch ends early if the
/// user cancels, or if the list changes or dies. Results stored by then stay, and running threads
/// are not waited for.
class SoundBatch final : public QObject
{
    Q_OBJECT

public:
    using Work = std::function<SoundConversion(const SoundSample&, const std::atomic<bool>*)>;

    SoundBatch(Sounds* sounds, const QVector<int>& rows, Work work);
    ~SoundBatch() override;

    /// Runs an event loop until everything is done.
    void run(const QString& title);

    /// Why some sounds were not changed (each reason once), and how many those are.
    QStringList reasons() const { return m_reasons; }
    int failedCount() const { return m_failed; }

private:
    /// The result of one worker thread.
    struct Made
    {
        SoundConversion conversion;
        std::shared_ptr<const void> packed;
    };

    using Watcher = QFutureWatcher<Made>;
    void turn();
    bool canStart() const;
    void start(int row);
    void putBack(const Made& made, int row);
    void cancel();
    void look();

    QPointer<Sounds> m_sounds;
    QVector<int> m_rows;
    Work m_work;
    std::shared_ptr<std::atomic<bool>> m_isCanceled = std::make_shared<std::atomic<bool>>(false);
    ProgressReporter* m_reporter = nullptr;
    QEventLoop m_loop;
    QTimer m_turn;
    QVector<QPair<Watcher*, int>> m_ready;  // finished workers and their rows
    int m_next = 0;
    int m_done = 0;
    int m_running = 0;  // running and finished workers
    int m_failed = 0;
    QStringList m_reasons;
};

}  // namespace Zorv
