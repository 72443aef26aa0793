#include "core/filewatchobject.h"

#include "core/filewatchermanager_p.h"

namespace Zorv {

namespace {

int s_refCount = 0;
FileWatcherManager* s_manager = nullptr;

}  // namespace

FileWatcherManager* FileWatcherManager::instance()
{
    return s_manager;
}

FileWatchObject::FileWatchObject()
{
    if (s_refCount++ == 0) {
        s_manager = new FileWatcherManager;
    }
    s_manager->add(this);
}

FileWatchObject::~FileWatchObject()
{
    s_manager->remove(this);
    if (--s_refCount == 0) {
        delete s_manager;
        s_manager = nullptr;
    }
}

bool FileWatchObject::fromFile(Archive&, const QString& newName, bool asCopy)
{
    if (!asCopy) {
        s_manager->rename(fileName(), newName);
    }
    return true;
}

bool FileWatchObject::toFile(Archive& archive, const QString& newName, bool asCopy)
{
    if (asCopy) {
        return true;
    }
    FileWatchObject::fromFile(archive, newName, false);
    m_paused = true;
    return true;
}

void FileWatchObject::pauseWatch(bool pause)
{
    m_paused = pause;
}

// Renewing the watch drops the signals for what was written before.
void FileWatchObject::endPause()
{
    pauseWatch(false);
    s_manager->forgetChanges(fileName());
}

void FileWatchObject::renewWatch(const QString& path)
{
    s_manager->renew(path);
}

}  // namespace Zorv
