#pragma once

#include "zorv_export.h"

#include <QObject>

class QIODevice;

namespace Zorv {

struct SampleInfo;

/// A sound device that plays from a stream, like `QAudioOutput`.
///
/// It reads asynchronously while the event loop runs. It reads nothing after `stop()`.
class ZORV_EXPORT SoundOutput : public QObject
{
    Q_OBJECT

public:
    enum State {
        Active,
        Suspended,
        Stopped,
        Idle  ///< nothing left to read, and everything was played
    };

    using QObject::QObject;

    /// Plays from the stream's current position. The stream is not owned and must outlive playback.
    virtual void start(QIODevice* stream) = 0;

    /// Stops, and discards data that was read but not played.
    virtual void stop() = 0;

    virtual void suspend() = 0;
    virtual void resume() = 0;
    virtual State state() const = 0;

    /// True if playback stopped because the device could not be opened or was removed.
    virtual bool hasFailed() const = 0;

signals:
    void stateChanged();

    /// Emitted every 10 ms during playback.
    void notify();
};

/// The sound devices of the machine. Main thread only.
class ZORV_EXPORT SoundSystem
{
public:
    virtual ~SoundSystem();

    /// The current object; by default Qt's sound system.
    static SoundSystem* instance();

    /// Installs an object, which the caller keeps; null restores the default.
    static void setInstance(SoundSystem* system);

    /// The closest playable form to `form`, or `form` itself if possible; its `bits` are 8
    /// (unsigned), 16, 24 or 32. No channels if there is no device. Also none, with a text for the
    /// user in `problem`, if the device accepts no such form.
    virtual SampleInfo playableForm(const SampleInfo& form, QString* problem) = 0;

    /// Opens a device for a form; never null.
    virtual SoundOutput* open(const SampleInfo& form, QObject* parent) = 0;
};

}  // namespace Zorv
