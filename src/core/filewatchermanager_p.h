#pragma once

#include "core/watcher_p.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

namespace Zorv {

class FileWatchObject;

/// The one watcher of the process and all objects that it serves.
///
/// A watch sits on a file, not on its name: it is made anew after each signal,
/// and while a file is missing its nearest existing folder is watched instead.
class FileWatcherManager : public QObject
{
    Q_OBJECT

public:
    /// Null while no object lives.
    static FileWatcherManager* instance();

    void add(FileWatchObject* object);
    void remove(FileWatchObject* object);

    /// Moves the watch of one object from one name to another.
    void rename(const QString& from, const QString& to);

    /// Makes sure that a file that was just written is watched, and that the
    /// pause of its objects ends.
    void renew(const QString& path);

    /// Drops the signals that are still to come for what has happened to a file.
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
    QSet<QString> m_missing;  // files that are to be watched once they are there
    QSet<QString> m_asking;   // files whose question is open
};

}  // namespace Zorv
