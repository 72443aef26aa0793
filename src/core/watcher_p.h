#pragma once

#include <QFileSystemWatcher>

#include <memory>

namespace Zorv {

/// Recycles watchers, because closing one waits about 10 ms for the kernel. The watcher is kept for
/// the next user, without paths and connections, and closed with the application.
struct GiveBackWatcher
{
    void operator()(QFileSystemWatcher* watcher) const;
};

using WatcherPtr = std::unique_ptr<QFileSystemWatcher, GiveBackWatcher>;

/// A watcher without paths. Null if there is no application, whose event loop would deliver the
/// signals, or if the host does not watch files. Main thread only.
WatcherPtr takeWatcher();

}  // namespace Zorv
