#pragma once

#include "zorv_export.h"

#include <QList>
#include <QString>

namespace Zorv {

class FileWatchObject;

/// Lets a host decide what happens when another program changes or removes a file.
///
/// Without a handler, the user is asked whether to reload a changed file, and a removed file is
/// ignored. A host that wants to ask a better question for some files, such as those with unsaved
/// changes, derives from this class and installs its own object. Main thread only.
class ZORV_EXPORT FileWatchHandler
{
public:
    /// Uninstalls the object if it is the installed one.
    virtual ~FileWatchHandler();

    /// The installed object, or null.
    static FileWatchHandler* instance();

    /// Installs an object, which the caller keeps owning. Null uninstalls.
    static void setInstance(FileWatchHandler* handler);

    /// A file has changed. `objects` use it and are not paused. Returns the objects for which the
    /// library should ask the user. This runs inside a signal of the watcher, so a host must defer
    /// its own questions to the event loop.
    virtual QList<FileWatchObject*> fileChanged(const QString& path,
                                                const QList<FileWatchObject*>& objects) = 0;

    /// A file no longer exists. It may come back in a moment: many programs save by removing the
    /// old file.
    virtual void fileGone(const QString& path) = 0;
};

}  // namespace Zorv
