#include "core/filelock_p.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QHash>
#include <QMutex>
#include <QPair>
#include <QThread>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zorv {

namespace {

constexpr int FirstPause = 1;
constexpr int LongestPause = 16;

/// The folders that this process has locked.
struct Held
{
    struct Lock
    {
        int handle = -1;
        int count = 0;
    };

    QMutex mutex;
    QHash<QPair<quint64, quint64>, Lock> locks;  // by device and inode
};

Held& held()
{
    static Held all;
    return all;
}

}  // namespace

#ifdef Q_OS_UNIX

FileLock::Result FileLock::tryLock(int handle)
{
    int result;
    do {
        result = ::flock(handle, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result == 0 ? Taken : errno == EWOULDBLOCK ? Busy : Unsupported;
}

bool FolderLock::take(const QString& folder, int milliseconds)
{
    release();
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct stat status;
    if (handle < 0 || ::fstat(handle, &status) != 0) {
        return true;
    }
    m_device = status.st_dev;
    m_inode = status.st_ino;
    const QDeadlineTimer end(milliseconds);
    FileLock::Result result = tryTake(handle);
    for (int pause = FirstPause; result == FileLock::Busy && !end.hasExpired();
         pause = qMin(pause * 2, LongestPause)) {
        QThread::msleep(ulong(pause));
        result = tryTake(handle);
    }
    m_isTaken = result == FileLock::Taken;
    if (!m_isTaken) {
        ::close(handle);
    }
    return result != FileLock::Busy;
}

/// If it succeeds, the lock owns the handle.
FileLock::Result FolderLock::tryTake(int handle)
{
    const QMutexLocker locker(&held().mutex);
    // flock() treats a second handle as another owner, even in the same process. So locks that this
    // process already holds are only counted.
    const auto own = held().locks.find({m_device, m_inode});
    if (own != held().locks.end()) {
        ::close(handle);
        ++own->count;
        return FileLock::Taken;
    }
    const FileLock::Result result = FileLock::tryLock(handle);
    if (result == FileLock::Taken) {
        held().locks.insert({m_device, m_inode}, {handle, 1});
    }
    return result;
}

void FolderLock::release()
{
    if (!m_isTaken) {
        return;
    }
    m_isTaken = false;
    const QMutexLocker locker(&held().mutex);
    const auto own = held().locks.find({m_device, m_inode});
    if (--own->count == 0) {
        // Unlock explicitly: a child process that is just starting may still have a copy of the
        // handle.
        ::flock(own->handle, LOCK_UN);
        ::close(own->handle);
        held().locks.erase(own);
    }
}

#else

FileLock::Result FileLock::tryLock(int)
{
    return Unsupported;
}

bool FolderLock::take(const QString&, int)
{
    return true;
}

void FolderLock::release() {}

#endif

FolderLock::~FolderLock()
{
    release();
}

}  // namespace Zorv
