#pragma once

#include "zorv_export.h"

#include <QString>

#include <memory>

namespace Zorv {

class FileChangePrivate;

/// Protects a read-modify-write of a file, so that no change by another program is lost.
///
/// Create the object before you read the file and keep it until you have written it. It records the
/// state of the file. Just before `FileSystemArchive` puts the new file in place, the state is
/// checked again. If another program has replaced or changed the file in between, the write fails,
/// the file stays as that program left it, and `isOvertaken()` returns true. Then read the file
/// again, with a new object.
///
/// `lock()` avoids such conflicts between programs that use this class: the others wait. Without
/// `lock()` several programs may work on the same file; the first write wins and the others have to
/// start again. Each write takes the lock for a moment by itself. A lock ends with its process. On
/// file systems without locks only the state check remains.
///
/// Re-entrant; use each object in one thread.
class ZORV_EXPORT FileChange
{
public:
    /// Records the state of the file, which need not exist. Links are followed.
    explicit FileChange(const QString& fileName);

    /// Releases the lock.
    ~FileChange();

    /// Locks the file's folder and records the state of the file again. Waits up to `milliseconds`
    /// for other programs. Returns false, with `error` in words for the user, if one of them holds
    /// the lock longer.
    bool lock(int milliseconds, QString* error);

    /// True if a write has failed because another program changed the file.
    bool isOvertaken() const;

private:
    Q_DISABLE_COPY(FileChange)
    std::unique_ptr<FileChangePrivate> d;
};

}  // namespace Zorv
