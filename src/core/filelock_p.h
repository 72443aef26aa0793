#pragma once

#include <QString>

namespace Zorv {

/// Locks of the system: they bind those who ask for them, and end with the process that
/// holds them, however it ends.
namespace FileLock {

enum Result {
    Taken,
    Busy,        ///< another one has it
    Unsupported  ///< the file system knows no locks
};

/// Tries to lock an open file or folder. The lock goes when the last copy of the handle is
/// closed.
Result tryLock(int handle);

}  // namespace FileLock

/// The lock of a folder, by which programs take turns in changing its files.
///
/// A lock on a file would go to nobody when another file takes its place; one on its folder
/// stays and leaves nothing behind. It is counted: the process has it as long as one of
/// these objects does, so that a change may be made of smaller ones. Re-entrant.
class FolderLock
{
public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Waits until no other process has the lock, and takes it. False if one keeps it so
    /// long. True where there are no locks, or no such folder: nobody has it then.
    bool take(const QString& folder, int milliseconds);

    void release();

private:
    FileLock::Result tryTake(int handle);

    quint64 m_device = 0;
    quint64 m_inode = 0;
    bool m_isTaken = false;
};

}  // namespace Zorv
