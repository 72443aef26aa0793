#pragma once

#include "zorv_export.h"

#include <QList>
#include <QString>

namespace Zorv {

class FileWatchObject;

/// A host's way of dealing with files that other programs have changed or taken away.
///
/// Without one the person is asked whether to read a changed file again, and nothing happens for
/// one that has gone. A host that has a better question for some files, as for those with unsaved
/// changes, derives and installs its own object. Main thread only.
class ZORV_EXPORT FileWatchHandler
{
public:
    /// Takes itself away, if it is the installed one.
    virtual ~FileWatchHandler();

    /// The object in use, or null.
    static FileWatchHandler* instance();

    /// Installs an object, which stays the caller's; null for none.
    static void setInstance(FileWatchHandler* handler);

    /// A file has changed; `objects` have it and are not paused. Gives those that the library is to
    /// ask about. Called in a signal of the watcher: a question of the host's own waits for the
    /// event loop.
    virtual QList<FileWatchObject*> fileChanged(const QString& path,
                                                const QList<FileWatchObject*>& objects) = 0;

    /// A file is no longer there. It may be back in a moment: many programs save by removing.
    virtual void fileGone(const QString& path) = 0;
};

}  // namespace Zorv
