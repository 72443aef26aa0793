#include "operations/filechanges.h"

#include "family/assets/folderlist.h"

#include <zorv/core/filechange.h>

#include <QDir>
#include <QFileInfo>
#include <QThread>

namespace Operations {

using Family::FolderList;

namespace {

constexpr int LongestWait = 20000;
constexpr int Attempts = 8;
constexpr int PauseMilliseconds = 15;  // multiplied by the number of the attempt

}  // namespace

QString watchedFile(const QString& path)
{
    return QFileInfo(path).isDir() ? QDir(path).filePath(FolderList::fileName()) : path;
}

bool changeAsOne(const QString& fileName, Others others, const std::function<void()>& change,
                 QString* error)
{
    for (int i = 1; i <= Attempts; ++i) {
        Zorv::FileChange watched(watchedFile(fileName));
        if (others == Others::Wait && !watched.lock(LongestWait, error)) {
            return false;
        }
        change();
        if (!watched.isOvertaken()) {
            break;
        }
        QThread::msleep(ulong(i * PauseMilliseconds));
    }
    return true;
}

}  // namespace Operations
