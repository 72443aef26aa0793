#pragma once

#include "core/watcher_p.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

namespace Zorv {

class FileWatchObject;

/// The one file watcher of the process, shared by all `FileWatchObject`s.
///
/// A watch is bound to a file, not to its name. So it is renewed after each
/// signal. While a file is missing, its nearest existing folder is watched
/// instead.
class FileWatcherManager : public QObject
{
    Q_OBJECT

public:
    /// Null while no `FileWatchObject` exists.
    static FileWatcherManager* instance();

    void add(FileWatchObject* object);
    void remove(FileWatchObject* object);

    /// Moves the watch of one object from one name to another.
    void rename(const QString& from, const QString& to);

    /// Ensures that a file that was just written is watched, and that the pause
    /// of its objects ends.
    void renew(const QString& path);

    /// Drops pending signals for changes that have already happened to a file.
    void forgetChanges(const QString& path);

private:
    void fileChanged(const QString& path);
    void folderChanged();
    void watch(const QString& path);
    void unwatch(const QString& path);
    void watchFolders();
    QList<FileWatchObject*> objectsOf(const QString& path) const;
    void resumeLater(FileWatchObject* object);
    void later(FileWatchObject* object, const std::function<void()>& action);
    void askToReload(const QString& path, const QList<FileWatchObject*>& changed);
    QFileSystemWatcher* watcher();

    WatcherPtr m_watcher;
    QList<FileWatchObject*> m_objects;
    QSet<QString> m_missing;  // files to watch once they exist
    QSet<QString> m_asking;   // files with an open question to the user
};

}  // namespace Zorv
