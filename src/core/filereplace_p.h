#pragma once

#include <QString>

class QFile;

namespace Zorv {

/// What the safe replacement of a file asks of the platform; where the platform
/// lacks a service, the function does what it can and answers true.
namespace FileReplace {

/// Follows symbolic links to the file that they stand for, which need not be
/// there. Empty, with the reason, if the links go in a circle.
QString resolved(const QString& path, QString* reason);

/// Another handle of an open file, so that its lock outlives the closing of the file.
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

/// Gives an open file the permissions and, as far as allowed, the owner of
/// another.
void takeOwnerAndMode(QFile& file, const QString& from);

/// Forces an open file, or the entries of a folder, to the disk.
bool syncFile(QFile& file, QString* reason);
void syncFolder(const QString& folder);

/// Waits until all that was written to the disk of a folder has reached it.
void syncDisk(const QString& folder);

/// Renames in one step; a file of the new name is replaced.
bool rename(const QString& from, const QString& to, QString* reason);

}  // namespace FileReplace
}  // namespace Zorv
