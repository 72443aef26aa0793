#include "core/unfinished_p.h"

#include "core/filelock_p.h"
#include "core/folders_p.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QRegularExpression>
#include <QSet>
#include <QThread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

// How leftovers of crashed programs are found:
//
// Each unfinished file or folder has a hidden name with a known suffix and is locked by its creator
// (`flock`). The system drops the lock when the process ends. So a file with such a name that can
// be locked is a leftover.
//
// There is a gap between creating and locking. A second program may lock the new file first and
// remove it. So after locking, the creator checks that the path still leads to the file it has
// open. If not, it must use another name. The remover makes the same check and holds its lock until
// the file is removed.
//
// On file systems without locks, only files older than `LongSeconds` count as leftovers.

namespace Zorv::Unfinished {

const char* const FileSuffix = ".zorv-save";
const char* const BackupSuffix = ".zorv-backup";

namespace {

constexpr int MomentMilliseconds = 1000;
constexpr int MaxRemovals = 5;

// Without locks, nobody can tell whether the other program is still working.
constexpr qint64 LongSeconds = 24 * 60 * 60;

struct Known
{
    QMutex mutex;
    QSet<QString> paths;
    QHash<QString, QElapsedTimer> cleared;
};

Known& known()
{
    static Known all;
    return all;
}

#ifdef Q_OS_UNIX

/// True if the path still leads to the opened file.
bool isSame(int handle, const QByteArray& path)
{
    struct stat opened, there;
    return ::fstat(handle, &opened) == 0 && ::lstat(path.constData(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

bool isLeft(int handle, const QFileInfo& info)
{
    switch (FileLock::tryLock(handle)) {
    case FileLock::Taken:
        return isSame(handle, QFile::encodeName(info.filePath()));
    case FileLock::Unsupported:
        return info.lastModified().secsTo(QDateTime::currentDateTime()) > LongSeconds;
    default:
        return false;
    }
}

#endif

}  // namespace

#ifdef Q_OS_UNIX

bool lock(int handle, const QString& path)
{
    return FileLock::tryLock(handle) != FileLock::Busy && isSame(handle, QFile::encodeName(path));
}

int openFolder(const QString& path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

void closeFolder(int handle)
{
    if (handle >= 0) {
        ::close(handle);
    }
}

bool removeIfLeft(const QString& path)
{
    const int handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0) {
        return false;
    }
    const QFileInfo info(path);
    // Hold the lock until the file is removed, so that nobody else can claim it.
    const bool isRemoved =
        isLeft(handle, info) && (info.isDir() ? removeDir(path) : QFile::remove(path));
    ::close(handle);
    return isRemoved;
}

#else

bool lock(int, const QString&)
{
    return true;
}

int openFolder(const QString&)
{
    return -1;
}

void closeFolder(int) {}

bool removeIfLeft(const QString& path)
{
    const QFileInfo info(path);
    const bool isLeft = info.lastModified().secsTo(QDateTime::currentDateTime()) > LongSeconds;
    return isLeft && (info.isDir() ? removeDir(path) : QFile::remove(path));
}

#endif

bool isName(const QString& name, const char* suffix)
{
    // Older versions wrote a number and a process id, separated by "-".
    static const QRegularExpression form(QStringLiteral("^\\.(.*\\.)?\\d+(-\\d+)?$"));
    const QLatin1String end(suffix);
    return name.endsWith(end) && form.match(name.chopped(end.size())).hasMatch();
}

void clear(const QString& folder, const char* suffix)
{
    const QStringList names =
        QDir(folder).entryList({QLatin1String(".*") + QLatin1String(suffix)},
                               QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        if (isName(name, suffix)) {
            removeIfLeft(QDir(folder).filePath(name));
        }
    }
}

void clearOnce(const QString& folder)
{
    {
        const QMutexLocker locker(&known().mutex);
        QElapsedTimer& last = known().cleared[folder];
        if (last.isValid() && !last.hasExpired(MomentMilliseconds)) {
            return;
        }
        last.start();
    }
    clear(folder, FileSuffix);
}

void add(const QString& path)
{
    const QMutexLocker locker(&known().mutex);
    known().paths.insert(path);
}

void remove(const QString& path)
{
    const QMutexLocker locker(&known().mutex);
    known().paths.remove(path);
}

void removeAll()
{
    // Never unlocked: anything created from now on would be left behind.
    known().mutex.lock();
    for (const QString& path : qAsConst(known().paths)) {
        const bool isFolder = QFileInfo(path).isDir();
        // Another thread may be adding a file to the folder right now, so try again.
        for (int i = 0; i < MaxRemovals && !(isFolder ? removeDir(path) : QFile::remove(path));
             ++i) {
            QThread::msleep(1);
        }
    }
}

}  // namespace Zorv::Unfinished
