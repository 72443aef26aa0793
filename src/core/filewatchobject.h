#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class Archive;

/// The base of everything that is told when its file changes on disk.
///
/// One file can be open several times; all objects of the process share one
/// watcher, and the person is asked once for all of them. A file that is deleted
/// raises no question; one that comes back is watched again and counts as
/// changed. The host's setting "enable_file_watcher" switches all questions off;
/// a host that does not know it gets them. `fromFile()` and `toFile()` are
/// called by a derived class around its own loading and saving. Without a
/// `QCoreApplication` nothing is watched. Main thread only.
class ZORV_EXPORT FileWatchObject
{
public:
    FileWatchObject();
    virtual ~FileWatchObject();

    /// Moves the watch to `fileName`; nothing for a copy. Always true. Called
    /// while `fileName()` still gives the old name.
    virtual bool fromFile(Archive& archive, const QString& fileName, bool asCopy);

    /// As `fromFile()`, and pauses the watch: the library's own write must not
    /// raise the question.
    virtual bool toFile(Archive& archive, const QString& fileName, bool asCopy);

    /// The path of the file, empty if it has none.
    virtual QString fileName() const = 0;

    /// Reads the file again. True if that went well.
    virtual bool reload() = 0;

    /// While paused the object raises no question. A pause that `toFile()` made
    /// ends a moment after the next signal for the file.
    virtual void pauseWatch(bool pause);

    bool isWatchPaused() const { return m_paused; }

    /// Ends a pause. What was written to the file during it raises no question,
    /// even if its signal has not come yet.
    void endPause();

protected:
    /// For a derived class whose file has just been written: a new file is
    /// watched from now on, and the pause of `toFile()` ends a moment later, also
    /// if no signal comes for this write. Call it after the device went back and
    /// after `toFile()`, with `fileName()` giving the new name.
    void renewWatch(const QString& fileName);

private:
    friend class FileWatcherManager;
    FileWatchObject(const FileWatchObject&) = delete;
    FileWatchObject& operator=(const FileWatchObject&) = delete;

    bool m_paused = false;
};

}  // namespace Zorv
