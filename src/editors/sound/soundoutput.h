#pragma once

#include "zorv_export.h"

#include <QObject>

class QIODevice;

namespace Zorv {

struct SampleInfo;

/// A sound device that plays what it reads from a stream, as `QAudioOutput` does.
///
/// It reads in its own time while the event loop runs. Nothing is read after `stop()`.
class ZORV_EXPORT SoundOutput : public QObject
{
    Q_OBJECT

public:
    enum State {
        Active,
        Suspended,
        Stopped,
        Idle  ///< there was nothing to read, and everything has been played
    };

    using QObject::QObject;

    /// Plays from the place where the stream is. It is not owned, and outlives the playing.
    virtual void start(QIODevice* stream) = 0;

    /// Stops and forgets what was read and not yet played.
    virtual void stop() = 0;

    virtual void suspend() = 0;
    virtual void resume() = 0;
    virtual State state() const = 0;

    /// True if it stopped because the device could not be opened, or has gone.
    virtual bool hasFailed() const = 0;

signals:
    void stateChanged();

    /// Every 10 ms while it plays.
    void notify();
};

/// The sound devices of the machine. Main thread only.
class ZORV_EXPORT SoundSystem
{
public:
    virtual ~SoundSystem();

    /// The object in use; by default that of Qt.
    static SoundSystem* instance();

    /// Installs an object, which stays the caller's; null brings the default back.
    static void setInstance(SoundSystem* system);

    /// The form of samples nearest to one that can be played, that one itself if it can be; its
    /// `bits` are 8 without a sign, or 16, 24 or 32. Without channels if there is no device, or,
    /// with a text for the person in `problem`, if it takes none of these.
    virtual SampleInfo playableForm(const SampleInfo& form, QString* problem) = 0;

    /// A device for a form; never null.
    virtual SoundOutput* open(const SampleInfo& form, QObject* parent) = 0;
};

}  // namespace Zorv
