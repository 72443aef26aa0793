#include "family/check/diskstate.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace Family {

namespace {

quint64 nanoseconds(const timespec& time)
{
    return quint64(time.tv_sec) * 1000000000 + quint64(time.tv_nsec);
}

}  // namespace

DiskState DiskState::of(const QString& path)
{
    DiskState state;
    struct stat info;
    if (path.isEmpty() || stat(QFile::encodeName(path).constData(), &info) != 0) {
        return state;
    }
    state.m_inode = info.st_ino;
    state.m_size = quint64(info.st_size);
    state.m_written = nanoseconds(info.st_mtim);
    state.m_changed = nanoseconds(info.st_ctim);
    const QStringList names =
        S_ISDIR(info.st_mode) ? QDir(path).entryList(QDir::Files) : QStringList();
    for (const QString& name : names) {
        const DiskState file = of(path + QLatin1Char('/') + name);
        state.m_size = state.m_size * 31 + file.m_size;
        state.m_changed = state.m_changed * 31 + file.m_changed;
    }
    return state;
}

}  // namespace Family
