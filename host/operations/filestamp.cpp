#include "operations/filestamp.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Operations {

namespace {

QFileInfoList filesIn(const QString& folder)
{
    return QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Name);
}

bool addFile(QCryptographicHash* sum, const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && sum->addData(&file);
}

/// Each file is preceded by its name and size, so that moving bytes between files changes the hash.
bool addFolder(QCryptographicHash* sum, const QString& folder)
{
    const QFileInfoList files = filesIn(folder);
    for (const QFileInfo& info : files) {
        sum->addData(info.fileName().toUtf8() + '\0' + QByteArray::number(info.size()) + '\0');
        if (!addFile(sum, info.filePath())) {
            return false;
        }
    }
    return true;
}

}  // namespace

FileStamp FileStamp::of(const QString& fileName)
{
    const QFileInfo info(fileName);
    FileStamp stamp;
    if (fileName.isEmpty() || !(info.isFile() || info.isDir())) {
        return stamp;
    }
    stamp.exists = true;
    stamp.size = info.isDir() ? 0 : info.size();
    stamp.changed = info.lastModified();
    const QFileInfoList files = info.isDir() ? filesIn(fileName) : QFileInfoList();
    for (const QFileInfo& file : files) {
        stamp.size += file.size();
        stamp.changed = std::max(stamp.changed, file.lastModified());
    }
    return stamp;
}

void FileStamp::addHash(const QString& fileName)
{
    QCryptographicHash sum(QCryptographicHash::Sha256);
    const bool isRead =
        exists && isSameState(of(fileName)) &&
        (QFileInfo(fileName).isDir() ? addFolder(&sum, fileName) : addFile(&sum, fileName));
    if (isRead && isSameState(of(fileName))) {
        hash = sum.result();
    }
}

bool FileStamp::isSameState(const FileStamp& other) const
{
    return exists == other.exists && size == other.size && changed == other.changed;
}

}  // namespace Operations
