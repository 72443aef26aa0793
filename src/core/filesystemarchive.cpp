#include "core/filesystemarchive.h"

#include "core/files.h"
#include "core/safefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <memory>

#include <sys/stat.h>

namespace Zorv {

namespace {

const QDir::Filters alwaysFiltered = QDir::NoDotAndDotDot | QDir::NoSymLinks;

// If access to the folder is denied, the file may still exist.
QString absence(const QString& path)
{
    struct stat info;
    const bool isReached = stat(QFile::encodeName(path).constData(), &info) == 0 ||
                           errno == ENOENT || errno == ENOTDIR;
    return isReached
               ? QCoreApplication::translate("Zorv::FileSystemArchive", "The file does not exist")
               : qt_error_string(errno);
}

void setReadError(QString* error, const QString& path, const QString& reason)
{
    if (error) {
        *error = QCoreApplication::translate("Zorv::FileSystemArchive",
                                             "Cannot open %1: %2. Check that the file is there and "
                                             "may be read.")
                     .arg(QDir::toNativeSeparators(path), reason);
    }
}

void setKindError(QString* error, const QFileInfo& info)
{
    if (error) {
        const char* const text =
            info.isDir() ? QT_TRANSLATE_NOOP("Zorv::FileSystemArchive",
                                             "Cannot open %1: It is a folder. Name a file in it.")
                         : QT_TRANSLATE_NOOP("Zorv::FileSystemArchive",
                                             "Cannot open %1: It is not a plain file. Name a file "
                                             "on a disk.");
        *error = QCoreApplication::translate("Zorv::FileSystemArchive", text)
                     .arg(QDir::toNativeSeparators(info.filePath()));
    }
}

}  // namespace

FileSystemArchive* FileSystemArchive::instance()
{
    static FileSystemArchive* const archive = new FileSystemArchive;
    return archive;
}

void FileSystemArchive::release() {}

bool FileSystemArchive::isReadOnly() const
{
    return false;
}

QStringList FileSystemArchive::entries(const QString& path, QDir::Filters filters,
                                       QDir::SortFlags sort) const
{
    return QDir(path).entryList(filters | alwaysFiltered, sort);
}

QFileInfoList FileSystemArchive::infoEntries(const QString& path, QDir::Filters filters,
                                             QDir::SortFlags sort) const
{
    return QDir(path).entryInfoList(filters | alwaysFiltered, sort);
}

QIODevice* FileSystemArchive::openFile(const QString& path, QIODevice::OpenMode mode,
                                       QString* error)
{
    const QFileInfo info(path);
    if (!(mode & QIODevice::WriteOnly) && !info.exists()) {
        setReadError(error, path, absence(path));
        return nullptr;
    }
    forcePath(path);
    if (mode & (QIODevice::WriteOnly | QIODevice::Append | QIODevice::NewOnly)) {
        auto file = std::make_unique<SafeFile>(path);
        if (file->open(mode)) {
            return file.release();
        }
        if (error) {
            *error = file->failure();
        }
        return nullptr;
    }
    if (!info.isFile()) {
        setKindError(error, info);
        return nullptr;
    }
    auto file = std::make_unique<QFile>(path);
    if (file->open(mode & ~QIODevice::Truncate)) {
        return file.release();
    }
    setReadError(error, path, file->errorString());
    return nullptr;
}

bool FileSystemArchive::closeFile(QIODevice* device, QString* error)
{
    const std::unique_ptr<QIODevice> owned(device);
    auto* file = qobject_cast<SafeFile*>(device);
    if (!file || file->commit()) {
        return true;
    }
    if (error) {
        *error = file->failure();
    }
    return false;
}

}  // namespace Zorv
