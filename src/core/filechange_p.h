#pragma once

#include "core/filelock_p.h"

#include <QString>

namespace Zorv {

/// How a file was found; two that differ are of two files, or of one that was written to.
struct FileState
{
    static FileState of(const QString& path);

    bool operator==(const FileState& other) const
    {
        return device == other.device && inode == other.inode && size == other.size &&
               modified == other.modified && changed == other.changed;
    }

    quint64 device = 0;
    quint64 inode = 0;  ///< all is 0 if nothing is there
    qint64 size = 0;
    qint64 modified = 0;  ///< in ns since 1970, as all times here
    qint64 changed = 0;   ///< content, mode or name; on some systems 0
};

/// The moment in which a new file takes the place of another: nobody else does so in this
/// folder, and what is there has not been changed since a `FileChange` began.
class FileTurn
{
public:
    /// `target` has no link left to follow.
    explicit FileTurn(const QString& target);
    FileTurn(const FileTurn&) = delete;
    FileTurn& operator=(const FileTurn&) = delete;

    /// Waits for the turn. False, with the reason, if it does not come, or comes too late.
    bool take(QString* reason);

    /// The new file is in its place: that is where the change goes on from.
    void done();

private:
    QString m_place;
    FolderLock m_lock;
};

}  // namespace Zorv
