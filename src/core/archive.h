#pragma once

#include "zorv_export.h"

#include <QDir>
#include <QFileInfoList>
#include <QIODevice>
#include <QStringList>

namespace Zorv {

/// Where the files of a project live: a folder, or anything else a host can read.
///
/// Every file of a project is opened through its archive. Main thread only.
class ZORV_EXPORT Archive
{
public:
    virtual ~Archive();

    /// Gives the archive up. `Project::release()` calls it on a project's own
    /// archive when it is not that of the `ParentProject`; the library never
    /// deletes an archive.
    virtual void release() = 0;

    /// True if nothing can be written. Restoring a backup then refuses to run.
    virtual bool isReadOnly() const = 0;

    /// The names in the folder `path` that pass `filters`, ordered by `sort`.
    virtual QStringList entries(const QString& path, QDir::Filters filters,
                                QDir::SortFlags sort) const = 0;

    /// As `entries()`, with the full record of each entry.
    virtual QFileInfoList infoEntries(const QString& path, QDir::Filters filters,
                                      QDir::SortFlags sort) const = 0;

    /// Opens a file; null if that fails.
    ///
    /// The caller does not own the device: it goes back through `closeFile()`.
    /// On failure `error`, if given, takes the reason in words for the person;
    /// on success it is left alone.
    virtual QIODevice* openFile(const QString& path, QIODevice::OpenMode mode,
                                QString* error = nullptr) = 0;

    /// Closes and disposes of a device of `openFile()`; null is allowed.
    ///
    /// The result is true if everything that was written has reached its place
    /// (always, for a device that was only read, and for null). On false the
    /// old content of the file is what it was before `openFile()`, and `error`,
    /// if given, takes the reason.
    virtual bool closeFile(QIODevice* device, QString* error = nullptr) = 0;
};

}  // namespace Zorv
