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

/// A sound that another thread has unpacked, and packed for a collection.
struct ReadySample
{
    SoundSample sample;
    std::shared_ptr<const void> packed;  ///< see `Sounds::packer()`
};

/// Gives what a reader reads in another thread, while the window is painted: what the person does
/// waits. Collections, and who calls this, may go meanwhile.
SoundSample readElsewhere(const std::function<SoundSample()>& reader);

/// The same, and makes it ready to be stored at little cost.
ReadySample readySample(const Sounds* to, const std::function<SoundSample()>& reader);

/// Unpacks a sound as it is now, in any thread, whatever becomes of it meanwhile.
std::function<SoundSample()> readerOf(const Sound& sound);

/// Work on the samples of several sounds, in the threads of the machine.
///
/// There they are unpacked, worked on and packed again; the main thread puts them back, one sound a
/// turn of the event loop. Only few are in work at a time. It ends early if the person gives up,
/// the list changes otherwise, or goes: what has been put back by then stays, and what is in work
/// is not waited for.
class SoundBatch final : public QObject
{
    Q_OBJECT

public:
    using Work = std::function<SoundConversion(const SoundSample&, const std::atomic<bool>*)>;

    SoundBatch(Sounds* sounds, const QVector<int>& rows, Work work);
    ~SoundBatch() override;

    /// Runs an event loop until all is done.
    void run(const QString& title);

    /// Why some sounds stay as they were, each reason once, and how many those are.
    QStringList reasons() const { return m_reasons; }
    int failedCount() const { return m_failed; }

private:
    /// What a thread has made of a sound.
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
    QVector<QPair<Watcher*, int>> m_ready;  // with their rows
    int m_next = 0;
    int m_done = 0;
    int m_running = 0;  // and ready
    int m_failed = 0;
    QStringList m_reasons;
};

}  // namespace Zorv
