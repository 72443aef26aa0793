#pragma once

#include <QString>

namespace Zorv {

/// Advisory locks of the operating system: they only affect programs that ask for them. A lock ends
/// with its process, even after a crash.
namespace FileLock {

enum Result {
    Taken,
    Busy,        ///< somebody else holds it
    Unsupported  ///< the file system has no locks
};

/// Tries to lock an open file or folder. The lock ends when the last copy of the handle is closed.
Result tryLock(int handle);

}  // namespace FileLock

/// A lock on a folder, so that programs take turns changing its files.
///
/// The folder is locked rather than the file, because saving replaces the file: a lock on the old
/// file would then protect nothing. It also leaves no lock file behind. The lock is counted: the
/// process holds it as long as one of these objects does, so operations that lock can be nested.
/// Re-entrant.
class FolderLock
{
public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Waits until no other process holds the lock, then takes it. Returns false on timeout.
    /// Returns true if locks are not supported or the folder does not exist; no lock is held then.
    bool take(const QString& folder, int milliseconds);

    void release();

private:
    FileLock::Result tryTake(int handle);

    quint64 m_device = 0;
    quint64 m_inode = 0;
    bool m_isTaken = false;
};

}  // namespace Zorv
