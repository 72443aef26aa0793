#pragma once

#include "zorv_export.h"

#include <QString>

#include <memory>

namespace Zorv {

class FileChangePrivate;

/// A change of a file that begins with reading it: no change of another program is lost.
///
/// Make one before the file is read, and keep it until it is written. What lies there is
/// looked at, and again when `FileSystemArchive` is about to put the new file in its place:
/// if another program has replaced or changed the file in between, the write fails,
/// the file stays as that program left it, and `isOvertaken()` tells. Read anew then, with a new
/// object.
///
/// `lock()` makes others wait meanwhile, so that this does not happen among programs that
/// use this class. Without it several may work on one file at once, and all but the
/// first have to begin anew. Every write takes the lock for the moment of its own. Locks end
/// with their process; where the file system has none, the look alone remains.
///
/// Re-entrant; an object may be used in one thread.
class ZORV_EXPORT FileChange
{
public:
    /// Looks at the file, which need not be there. Links are followed.
    explicit FileChange(const QString& fileName);

    /// Lets the lock go.
    ~FileChange();

    /// Takes the lock of the file's folder, and looks at the file again. Waits for other programs
    /// up to `milliseconds`; false, with `error` for the person, if one keeps it longer.
    bool lock(int milliseconds, QString* error);

    /// True if a write has failed for what another program did to the file.
    bool isOvertaken() const;

private:
    Q_DISABLE_COPY(FileChange)
    std::unique_ptr<FileChangePrivate> d;
};

}  // namespace Zorv
