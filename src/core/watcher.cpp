#include "core/watcher_p.h"

#include "core/interface.h"

#include <QCoreApplication>

#include <vector>

namespace Zorv {

namespace {

constexpr std::size_t MostIdle = 4;

std::vector<std::unique_ptr<QFileSystemWatcher>>& idleWatchers()
{
    static std::vector<std::unique_ptr<QFileSystemWatcher>> watchers;
    return watchers;
}

// Closing a watcher needs the application, so none may outlive it.
void closeIdleWatchers()
{
    idleWatchers().clear();
}

}  // namespace

void GiveBackWatcher::operator()(QFileSystemWatcher* watcher) const
{
    std::unique_ptr<QFileSystemWatcher> owned(watcher);
    if (!QCoreApplication::instance() || idleWatchers().size() >= MostIdle) {
        return;
    }
    QObject::disconnect(watcher, nullptr, nullptr, nullptr);
    const QStringList paths = watcher->files() + watcher->directories();
    if (!paths.isEmpty()) {
        watcher->removePaths(paths);
    }
    if (idleWatchers().empty()) {
        qAddPostRoutine(closeIdleWatchers);
    }
    idleWatchers().push_back(std::move(owned));
}

WatcherPtr takeWatcher()
{
    const Interface* host = Interface::instance();
    if (!QCoreApplication::instance() || (host && !host->watchesFiles())) {
        return nullptr;
    }
    if (idleWatchers().empty()) {
        return WatcherPtr(new QFileSystemWatcher);
    }
    WatcherPtr watcher(idleWatchers().back().release());
    idleWatchers().pop_back();
    return watcher;
}

}  // namespace Zorv
