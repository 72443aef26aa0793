#pragma once

#include <QString>

class QFile;

namespace Zorv {

/// Platform services for replacing a file safely. Where the platform lacks a service, the function
/// does what it can and returns true.
namespace FileReplace {

/// Follows symbolic links to the final file, which need not exist. Returns an empty path, with the
/// reason, if the links form a cycle.
QString resolved(const QString& path, QString* reason);

/// Duplicates the handle of an open file, so that its lock survives closing the file.
class HandleCopy
{
public:
    explicit HandleCopy(const QFile& file);
    ~HandleCopy();
    HandleCopy(const HandleCopy&) = delete;
    HandleCopy& operator=(const HandleCopy&) = delete;

private:
    int m_handle = -1;
};

/// Copies the permissions of another file to an open file and, if permitted, the owner.
void takeOwnerAndMode(QFile& file, const QString& from);

/// Forces an open file, or the entries of a folder, to disk.
bool syncFile(QFile& file, QString* reason);
void syncFolder(const QString& folder);

/// Waits until everything written to the disk that holds `folder` has reached it.
void syncDisk(const QString& folder);

/// Renames atomically. An existing file with the new name is replaced.
bool rename(const QString& from, const QString& to, QString* reason);

}  // namespace FileReplace
}  // namespace Zorv
