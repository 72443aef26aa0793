#pragma once

#include "core/archive.h"

namespace Zorv {

/// The archive of plain folders, and the only one that the library provides.
///
/// A file opened for writing is a `SafeFile`: written beside the old one, under
/// a hidden name, and put in its place when the device is given back. Until
/// then, and after any failure, the old file is whole. The mode is kept, and a
/// symbolic link is followed, not replaced. Of a file with several hard links
/// only the one that was opened changes. A target that exists and is not a
/// regular file (a pipe, a device), or that is write-protected, is refused.
///
/// A process that is killed leaves its hidden file behind; the next that writes in
/// the folder removes it, and no file that is being written: that is locked.
/// Changes by several programs take turns, see `FileChange`.
///
/// Opening to append, or to read and write, starts from a copy of the old
/// content; the same promise holds.
class ZORV_EXPORT FileSystemArchive : public Archive
{
public:
    /// The one object, made on first use and never deleted.
    static FileSystemArchive* instance();

    /// Does nothing: the object belongs to the process.
    void release() override;

    /// Always false.
    bool isReadOnly() const override;

    /// Lists through `QDir`; `QDir::NoDotAndDotDot` and `QDir::NoSymLinks` are
    /// added to `filters` in every case.
    QStringList entries(const QString& path, QDir::Filters filters,
                        QDir::SortFlags sort) const override;
    QFileInfoList infoEntries(const QString& path, QDir::Filters filters,
                              QDir::SortFlags sort) const override;

    /// Opens a file. Without `QIODevice::WriteOnly` in `mode` a file that does
    /// not exist gives null and no folder is made; with it, missing folders on
    /// the way are made first, even if the opening then fails. What is not a
    /// regular file is refused: a pipe would wait for somebody to fill it.
    QIODevice* openFile(const QString& path, QIODevice::OpenMode mode,
                        QString* error = nullptr) override;

    /// Puts a written file in its place and deletes the device.
    bool closeFile(QIODevice* device, QString* error = nullptr) override;

protected:
    FileSystemArchive() = default;
    ~FileSystemArchive() override = default;
};

}  // namespace Zorv
