#include "core/filewatchermanager_p.h"

#include "core/dialogs/dialogs.h"
#include "core/filewatchhandler.h"
#include "core/filewatchobject.h"
#include "core/folders_p.h"
#include "core/interface.h"

#include <QFileInfo>
#include <QPointer>
#include <QTimer>

namespace Zorv {

namespace {

const int BurstMilliseconds = 250;

// A host without an opinion gets what people expect: to be told.
bool isEnabled()
{
    const Interface* host = Interface::instance();
    const QVariant option = host ? host->option(QStringLiteral("enable_file_watcher")) : QVariant();
    return !option.isValid() || option.toBool();
}

}  // namespace

void FileWatcherManager::add(FileWatchObject* object)
{
    m_objects.append(object);
}

void FileWatcherManager::remove(FileWatchObject* object)
{
    m_objects.removeOne(object);
}

void FileWatcherManager::rename(const QString& from, const QString& to)
{
    if (from == to || !watcher()) {
        return;
    }
    if (!from.isEmpty() && objectsOf(from).size() < 2) {
        unwatch(from);
    }
    watch(to);
}

void FileWatcherManager::renew(const QString& path)
{
    watch(path);
    if (!isEnabled()) {
        return;
    }
    // A write that came before its watch gives no signal that would end the
    // pause. One that gives a signal has given it when the first moment is over,
    // however long the program was busy.
    for (FileWatchObject* object : objectsOf(path)) {
        if (object->m_paused) {
            later(object, [this, object] { resumeLater(object); });
        }
    }
}

void FileWatcherManager::forgetChanges(const QString& path)
{
    unwatch(path);
    watch(path);
}

void FileWatcherManager::fileChanged(const QString& path)
{
    const QList<FileWatchObject*> objects = objectsOf(path);
    unwatch(path);
    if (objects.isEmpty()) {
        return;
    }
    watch(path);
    FileWatchHandler* handler = FileWatchHandler::instance();
    const bool isThere = QFileInfo::exists(path);
    if (!isThere && handler) {
        handler->fileGone(path);
    }
    if (!isThere || !isEnabled()) {
        return;
    }
    QList<FileWatchObject*> changed;
    for (FileWatchObject* object : objects) {
        if (object->m_paused) {
            resumeLater(object);
        } else {
            changed.append(object);
        }
    }
    if (handler && !changed.isEmpty()) {
        changed = handler->fileChanged(path, changed);
    }
    if (!changed.isEmpty()) {
        askToReload(path, changed);
    }
}

void FileWatcherManager::folderChanged()
{
    const QSet<QString> missing = m_missing;
    QPointer<FileWatcherManager> self(this);
    for (const QString& path : missing) {
        if (self && m_missing.contains(path) && QFileInfo::exists(path)) {
            fileChanged(path);
        }
    }
    if (self) {
        watchFolders();
    }
}

void FileWatcherManager::watch(const QString& path)
{
    if (path.isEmpty() || !watcher()) {
        return;
    }
    if (QFileInfo::exists(path)) {
        m_missing.remove(path);
        if (!m_watcher->files().contains(path)) {
            m_watcher->addPath(path);
        }
    } else {
        m_missing.insert(path);
    }
    watchFolders();
}

void FileWatcherManager::unwatch(const QString& path)
{
    if (m_watcher && m_watcher->files().contains(path)) {
        m_watcher->removePath(path);
    }
    if (m_missing.remove(path)) {
        watchFolders();
    }
}

void FileWatcherManager::watchFolders()
{
    const QStringList watched = m_watcher->directories();
    if (m_missing.isEmpty() && watched.isEmpty()) {
        return;
    }
    QSet<QString> wanted;
    for (const QString& path : qAsConst(m_missing)) {
        wanted.insert(nearestFolder(path));
    }
    for (const QString& folder : watched) {
        if (!wanted.remove(folder)) {
            m_watcher->removePath(folder);
        }
    }
    for (const QString& folder : qAsConst(wanted)) {
        m_watcher->addPath(folder);
    }
}

QList<FileWatchObject*> FileWatcherManager::objectsOf(const QString& path) const
{
    QList<FileWatchObject*> result;
    for (FileWatchObject* object : m_objects) {
        if (object->fileName() == path) {
            result.append(object);
        }
    }
    return result;
}

void FileWatcherManager::resumeLater(FileWatchObject* object)
{
    later(object, [object] { object->m_paused = false; });
}

void FileWatcherManager::later(FileWatchObject* object, const std::function<void()>& action)
{
    if (!watcher()) {
        action();
        return;
    }
    QTimer::singleShot(BurstMilliseconds, this, [this, object, action] {
        if (m_objects.contains(object)) {
            action();
        }
    });
}

void FileWatcherManager::askToReload(const QString& path, const QList<FileWatchObject*>& changed)
{
    // The answer to the open question will read the newest content.
    if (m_asking.contains(path)) {
        return;
    }
    m_asking.insert(path);
    QPointer<FileWatcherManager> self(this);
    const Dialogs::Button answer = Dialogs::instance()->question(
        tr("File modified"),
        tr("The file '%1' has been modified. Do you want to reload all other instances of this "
           "file now?")
            .arg(path),
        Dialogs::Yes | Dialogs::No, Dialogs::No);
    if (!self) {
        return;
    }
    m_asking.remove(path);
    for (FileWatchObject* object : changed) {
        // While the question was open, a document can have been closed, another one
        // made in its place, or this one saved under another name.
        if (answer == Dialogs::Yes && self && objectsOf(path).contains(object)) {
            object->reload();
        }
    }
}

QFileSystemWatcher* FileWatcherManager::watcher()
{
    if (!m_watcher && (m_watcher = takeWatcher())) {
        connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this,
                &FileWatcherManager::fileChanged);
        connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this,
                &FileWatcherManager::folderChanged);
    }
    return m_watcher.get();
}

}  // namespace Zorv
