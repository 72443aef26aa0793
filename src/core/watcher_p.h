#pragma once

#include <QFileSystemWatcher>

#include <memory>

namespace Zorv {

/// Closing a watcher waits for the kernel, some 10 ms. One that is given back goes on without paths
/// and receivers to whoever needs the next, and closes with the application.
struct GiveBackWatcher
{
    void operator()(QFileSystemWatcher* watcher) const;
};

using WatcherPtr = std::unique_ptr<QFileSystemWatcher, GiveBackWatcher>;

/// A watcher without paths; null without an application, whose event loop would tell, and for a
/// host that does not watch. Main thread only.
WatcherPtr takeWatcher();

}  // namespace Zorv
