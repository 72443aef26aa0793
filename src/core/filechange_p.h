#pragma once

#include "core/filelock_p.h"

#include <QString>

namespace Zorv {

/// A snapshot of a file's identity and times. If two differ, the file was written or replaced.
struct FileState
{
    static FileState of(const QString& path);

    bool operator==(const FileState& other) const
    {
        return device == other.device && inode == other.inode && size == other.size &&
               modified == other.modified && changed == other.changed;
    }

    quint64 device = 0;
    quint64 inode = 0;  ///< all fields are 0 if there is no file
    qint64 size = 0;
    qint64 modified = 0;  ///< in ns since 1970, like all times here
    qint64 changed = 0;   ///< of content, mode or name; always 0 on some systems
};

/// The short critical section in which a new file replaces another. It ensures that nobody else
/// replaces a file in this folder, and that the target has not changed since its `FileChange`
/// began.
class FileTurn
{
public:
    /// `target` must be resolved: no symbolic links left to follow.
    explicit FileTurn(const QString& target);
    FileTurn(const FileTurn&) = delete;
    FileTurn& operator=(const FileTurn&) = delete;

    /// Waits for the lock. Returns false, with the reason, on timeout or if the file has been
    /// changed.
    bool take(QString* reason);

    /// Call after the new file is in place. Its state becomes the new base of the change.
    void done();

private:
    QString m_place;
    FolderLock m_lock;
};

}  // namespace Zorv
