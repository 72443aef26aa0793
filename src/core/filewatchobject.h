#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class Archive;

/// Base class of everything that must notice when its file changes on disk.
///
/// One file can be open several times. All objects of the process share one
/// watcher, and the user is asked once for all of them. Deleting a file raises
/// no question; a file that comes back is watched again and counts as changed.
/// The host's setting "enable_file_watcher" turns all questions off; if the
/// host does not know this setting, questions are on. A derived class calls
/// `fromFile()` and `toFile()` around its own loading and saving. Without a
/// `QCoreApplication` nothing is watched. Main thread only.
class ZORV_EXPORT FileWatchObject
{
public:
    FileWatchObject();
    virtual ~FileWatchObject();

    /// Moves the watch to `fileName`; does nothing if `asCopy` is set. Always
    /// true. Call it while `fileName()` still returns the old name.
    virtual bool fromFile(Archive& archive, const QString& fileName, bool asCopy);

    /// Like `fromFile()`, and also pauses the watch, so that the library's own
    /// write does not raise the question.
    virtual bool toFile(Archive& archive, const QString& fileName, bool asCopy);

    /// The path of the file; empty if it has none.
    virtual QString fileName() const = 0;

    /// Reads the file again. Returns true on success.
    virtual bool reload() = 0;

    /// A paused object raises no question. A pause made by `toFile()` ends a
    /// moment after the next signal for the file.
    virtual void pauseWatch(bool pause);

    bool isWatchPaused() const { return m_paused; }

    /// Ends a pause. Anything written to the file during the pause raises no
    /// question, even if its signal arrives later.
    void endPause();

protected:
    /// For a derived class that has just written its file. A new file is
    /// watched from now on. The pause of `toFile()` ends a moment later, even
    /// if no signal comes for this write. Call it after the device is closed
    /// and after `toFile()`, when `fileName()` returns the new name.
    void renewWatch(const QString& fileName);

private:
    friend class FileWatcherManager;
    FileWatchObject(const FileWatchObject&) = delete;
    FileWatchObject& operator=(const FileWatchObject&) = delete;

    bool m_paused = false;
};

}  // namespace Zorv
