#pragma once

#include "core/archive.h"

namespace Zorv {

/// The archive for plain folders. It is the only archive the library provides.
///
/// Files are written through `SafeFile`: the new file is created next to the old one, under a
/// hidden name, and replaces it in `closeFile()`. Until then, and after any failure, the old file
/// is complete. The mode is kept. A symbolic link is followed, not replaced. If a file has several
/// hard links, only the opened one changes. An existing target is refused if it is not a regular
/// file (a pipe, a device) or is write-protected.
///
/// A process that is killed leaves its hidden file behind. The next program that writes in the same
/// folder removes it. Files that are still being written are locked and therefore not removed. For
/// changes by several programs at once, see `FileChange`.
///
/// Opening a file to append, or to read and write, starts from a copy of the old content. The same
/// guarantees apply.
class ZORV_EXPORT FileSystemArchive : public Archive
{
public:
    /// The one object. Created on first use and never deleted.
    static FileSystemArchive* instance();

    /// Does nothing: the object lives as long as the process.
    void release() override;

    /// Always false.
    bool isReadOnly() const override;

    /// Lists through `QDir`. `QDir::NoDotAndDotDot` and `QDir::NoSymLinks` are always added to
    /// `filters`.
    QStringList entries(const QString& path, QDir::Filters filters,
                        QDir::SortFlags sort) const override;
    QFileInfoList infoEntries(const QString& path, QDir::Filters filters,
                              QDir::SortFlags sort) const override;

    /// Opens a file. Without `QIODevice::WriteOnly` in `mode`, a missing file gives null and no
    /// folder is created. With it, missing folders are created first, even if opening then fails.
    /// Anything but a regular file is refused: opening a pipe, for example, would block until
    /// somebody writes to it.
    QIODevice* openFile(const QString& path, QIODevice::OpenMode mode,
                        QString* error = nullptr) override;

    /// Moves a written file into place and deletes the device.
    bool closeFile(QIODevice* device, QString* error = nullptr) override;

protected:
    FileSystemArchive() = default;
    ~FileSystemArchive() override = default;
};

}  // namespace Zorv
