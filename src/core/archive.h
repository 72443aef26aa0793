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

    /// Lets go of the archive. `Project::release()` calls this on a project's
    /// own archive, unless the `ParentProject` uses the same one. The library
    /// never deletes an archive.
    virtual void release() = 0;

    /// True if the archive cannot be written to. Restoring a backup then
    /// refuses to run.
    virtual bool isReadOnly() const = 0;

    /// The names in the folder `path` that pass `filters`, ordered by `sort`.
    virtual QStringList entries(const QString& path, QDir::Filters filters,
                                QDir::SortFlags sort) const = 0;

    /// Like `entries()`, with the full record of each entry.
    virtual QFileInfoList infoEntries(const QString& path, QDir::Filters filters,
                                      QDir::SortFlags sort) const = 0;

    /// Opens a file. Returns null on failure.
    ///
    /// The caller does not own the device and must pass it to `closeFile()`. On
    /// failure, `error` (if given) is set to the reason, in words for the user.
    /// On success it is left unchanged.
    virtual QIODevice* openFile(const QString& path, QIODevice::OpenMode mode,
                                QString* error = nullptr) = 0;

    /// Closes and deletes a device from `openFile()`. Null is allowed.
    ///
    /// Returns true if all written data has reached the file. That is always so
    /// for null and for a device that was only read. On false the file still
    /// has the content it had before `openFile()`, and `error` (if given) is
    /// set to the reason.
    virtual bool closeFile(QIODevice* device, QString* error = nullptr) = 0;
};

}  // namespace Zorv
