#include "core/filechange.h"

#include "core/filechange_p.h"
#include "core/filereplace_p.h"
#include "core/folders_p.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

// How lost updates are detected:
//
// A table maps each path to the `FileChange` objects on it. When a file is about to be replaced,
// `FileTurn` takes the lock of its folder and compares the state recorded by the newest
// `FileChange` (device, inode, size and times) with the current one. If they differ, another
// program was faster: the write fails and the object is marked as overtaken. After a successful
// write the recorded state is renewed, so that several writes may follow. Files without a
// `FileChange` are only locked.

namespace Zorv {

namespace {

/// How long a write without a `FileChange` waits. It is short because it blocks the window.
constexpr int ShortWait = 5000;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::FileChange)
};

/// The canonical path of a file, independent of how it was named. Its folder need not exist.
QString placeOf(const QString& target)
{
    QString folder = QDir().absoluteFilePath(target);
    QString name;
    do {
        const int end = folder.lastIndexOf(QLatin1Char('/'));
        name.prepend(folder.midRef(end));
        folder.truncate(end);
    } while (!folder.isEmpty() && !QFileInfo(folder).isDir());
    // Resolve links first: ".." behind a link means the parent of the link's target.
    return QDir::cleanPath(QFileInfo(folder).canonicalFilePath() + name);
}

QString busyText(const QString& folder)
{
    return Text::tr("Another program is changing files in %1")
        .arg(QDir::toNativeSeparators(folder));
}

}  // namespace

class FileChangePrivate
{
public:
    QString place;
    FileState state;
    FolderLock lock;
    int wait = ShortWait;
    bool isOvertaken = false;
};

namespace {

/// All active changes of the process.
struct Changes
{
    QMutex mutex;
    QMultiHash<QString, FileChangePrivate*> byPlace;
};

Changes& changes()
{
    static Changes all;
    return all;
}

}  // namespace

FileState FileState::of(const QString& path)
{
    FileState state;
#ifdef Q_OS_UNIX
    struct stat found;
    if (::stat(QFile::encodeName(path).constData(), &found) == 0) {
        constexpr qint64 Second = 1000000000;
        state = {quint64(found.st_dev), quint64(found.st_ino), found.st_size,
                 found.st_mtim.tv_sec * Second + found.st_mtim.tv_nsec,
                 found.st_ctim.tv_sec * Second + found.st_ctim.tv_nsec};
    }
#else
    const QFileInfo info(path);
    if (info.exists()) {
        state = {0, 1, info.size(), info.lastModified().toMSecsSinceEpoch() * 1000000, 0};
    }
#endif
    return state;
}

FileChange::FileChange(const QString& fileName) : d(std::make_unique<FileChangePrivate>())
{
    QString reason;
    d->place = placeOf(FileReplace::resolved(fileName, &reason));
    d->state = FileState::of(d->place);
    const QMutexLocker locker(&changes().mutex);
    changes().byPlace.insert(d->place, d.get());
}

FileChange::~FileChange()
{
    const QMutexLocker locker(&changes().mutex);
    changes().byPlace.remove(d->place, d.get());
}

bool FileChange::lock(int milliseconds, QString* error)
{
    const QString folder = nearestFolder(d->place);
    d->wait = milliseconds;
    if (!d->lock.take(folder, milliseconds)) {
        *error = Text::tr("%1, for longer than %2 seconds. Nothing is written. Wait until it has "
                          "ended, then try again.")
                     .arg(busyText(folder), QString::number(milliseconds / 1000));
        return false;
    }
    d->state = FileState::of(d->place);
    return true;
}

bool FileChange::isOvertaken() const
{
    const QMutexLocker locker(&changes().mutex);
    return d->isOvertaken;
}

FileTurn::FileTurn(const QString& target) : m_place(placeOf(target)) {}

bool FileTurn::take(QString* reason)
{
    int wait = ShortWait;
    {
        const QMutexLocker locker(&changes().mutex);
        const FileChangePrivate* change = changes().byPlace.value(m_place);
        wait = change ? change->wait : wait;
    }
    const QString folder = QFileInfo(m_place).path();
    if (!m_lock.take(folder, wait)) {
        *reason = busyText(folder);
        return false;
    }
    const QMutexLocker locker(&changes().mutex);
    FileChangePrivate* change = changes().byPlace.value(m_place);
    if (change && !(change->state == FileState::of(m_place))) {
        change->isOvertaken = true;
        *reason = Text::tr("Another program has changed the file meanwhile");
        return false;
    }
    return true;
}

void FileTurn::done()
{
    const QMutexLocker locker(&changes().mutex);
    if (FileChangePrivate* change = changes().byPlace.value(m_place)) {
        change->state = FileState::of(m_place);
    }
}

}  // namespace Zorv
