#include "core/filewatchermanager_p.h"

#include "core/dialogs/dialogs.h"
#include "core/filewatchhandler.h"
#include "core/filewatchobject.h"
#include "core/folders_p.h"
#include "core/interface.h"

#include <QFileInfo>
#include <QPointer>
#include <QTimer>

// How a file is watched:
//
// The watcher is bound to the file, not to the name. Many programs save by removing or replacing
// the file, which ends the watch. So each signal for a path drops the watch and sets a new one. If
// the file is missing at that time, its path goes to `m_missing` and the nearest existing folder is
// watched. A signal for such a folder checks all missing paths; one that is back counts as changed.
//
// The library's own writes must not raise a question. `FileWatchObject::toFile()` pauses the
// object. The signal for that write only schedules the end of the pause, `BurstMilliseconds` later,
// so that all signals of one write are ignored. Some writes give no signal, for example if the file
// was not watched yet. `renew()` therefore ends the pause by time as well.

namespace Zorv {

namespace {

const int BurstMilliseconds = 250;

// By default the user is asked.
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
    // If the file was written before it was watched, no signal will end the pause. Waiting twice is
    // on purpose: a signal of this write arrives during the first wait, however busy the program
    // was.
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
    // A question for this file is already open. Its answer will load the newest content.
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
        // While the question was open, the document may have been closed, replaced by a new one or
        // saved under another name.
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
