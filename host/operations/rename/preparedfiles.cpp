#include "operations/rename/preparedfiles_p.h"

#include <zorv/core/filesystemarchive.h>

#include <QFile>

#include <algorithm>

namespace Operations {

using Zorv::SafeFile;

namespace {

constexpr int BlockSize = 1024 * 1024;

Zorv::Archive& disk()
{
    return *Zorv::FileSystemArchive::instance();
}

}  // namespace

SafeFile* PreparedFiles::open(const QString& path, QString* error)
{
    m_files.push_back(std::make_unique<SafeFile>(path));
    SafeFile* file = m_files.back().get();
    if (file->open(QIODevice::WriteOnly)) {
        return file;
    }
    *error = file->failure();
    return nullptr;
}

bool PreparedFiles::finish(SafeFile* file, QString* error)
{
    if (!file->prepare()) {
        *error = file->failure();
        return false;
    }
    return true;
}

bool PreparedFiles::add(const QString& path, const QByteArray& content, QString* error)
{
    SafeFile* file = open(path, error);
    if (!file) {
        return false;
    }
    file->write(content);
    return finish(file, error);
}

bool PreparedFiles::addCopy(const QString& path, QString* error)
{
    QFile old(path);
    SafeFile* file = open(path, error);
    if (!file) {
        return false;
    }
    bool isRead = old.open(QIODevice::ReadOnly);
    QByteArray block(BlockSize, Qt::Uninitialized);
    qint64 size = isRead ? 1 : -1;
    while (size > 0 && (size = old.read(block.data(), block.size())) > 0) {
        file->write(block.constData(), size);
    }
    if (size < 0) {
        *error = old.errorString();
        return false;
    }
    return finish(file, error);
}

bool PreparedFiles::commit(int index, QString* error)
{
    SafeFile& file = *m_files[size_t(index)];
    const bool isDone = file.commit();
    if (!isDone) {
        *error = file.failure();
    }
    return isDone;
}

QStringList PreparedFiles::entries(const QString& path, QDir::Filters filters,
                                   QDir::SortFlags sort) const
{
    return disk().entries(path, filters, sort);
}

QFileInfoList PreparedFiles::infoEntries(const QString& path, QDir::Filters filters,
                                         QDir::SortFlags sort) const
{
    return disk().infoEntries(path, filters, sort);
}

QIODevice* PreparedFiles::openFile(const QString& path, QIODevice::OpenMode mode, QString* error)
{
    if (!(mode & QIODevice::WriteOnly)) {
        return disk().openFile(path, mode, error);
    }
    QString reason;
    SafeFile* file = open(path, &reason);
    if (!file && error) {
        *error = reason;
    }
    return file;
}

bool PreparedFiles::closeFile(QIODevice* device, QString* error)
{
    const bool isOurs = std::any_of(m_files.begin(), m_files.end(),
                                    [device](const auto& file) { return file.get() == device; });
    if (!isOurs) {
        return disk().closeFile(device, error);
    }
    QString reason;
    const bool isDone = finish(static_cast<SafeFile*>(device), &reason);
    if (!isDone && error) {
        *error = reason;
    }
    return isDone;
}

}  // namespace Operations
