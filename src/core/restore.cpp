#include "core/parentproject.h"

#include "core/archive.h"
#include "core/filereplace_p.h"
#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/filewatchermanager_p.h"
#include "core/filewatchobject.h"
#include "core/folders_p.h"
#include "core/interface.h"
#include "core/newbackup_p.h"
#include "core/parentproject_p.h"
#include "core/progress.h"
#include "core/projectfile.h"

#include <memory>

namespace Zorv {

namespace {

using Projects = QVector<QPointer<Project>>;

/// Prevents open files from asking about changes that the restore itself makes.
class WatchPause
{
public:
    explicit WatchPause(const Projects& projects) : m_projects(projects)
    {
        forEachFile([this](ProjectFile* file, FileWatchObject* watch) {
            watch->pauseWatch(true);
            m_paused.insert(file);
        });
    }

    ~WatchPause()
    {
        forEachFile([this](ProjectFile* file, FileWatchObject* watch) {
            if (m_paused.contains(file)) {
                watch->endPause();
            }
        });
    }

private:
    template <typename Function>
    void forEachFile(Function function) const
    {
        for (const QPointer<Project>& project : m_projects) {
            const QList<ProjectFile*> files = project ? project->files() : QList<ProjectFile*>();
            for (ProjectFile* file : files) {
                if (auto* watch = dynamic_cast<FileWatchObject*>(file)) {
                    function(file, watch);
                }
            }
        }
    }

    Projects m_projects;
    QSet<ProjectFile*> m_paused;
};

}  // namespace

void ParentProjectPrivate::copyBackup(const QString& source)
{
    const Projects opened = openProjects();
    auto pause = std::make_unique<WatchPause>(opened);
    QStringList files;
    listFiles(source, files);
    Progress progress(ParentProject::tr("Restoring backup..."), files.size() + opened.size());
    // The newest backup may not be on disk yet. It must be, before its originals are overwritten.
    FileReplace::syncDisk(absolutePath());
    for (const QString& file : qAsConst(files)) {
        const QString relative = file.mid(source.size());
        QString error;
        const bool isCopied = copyFile(*FileSystemArchive::instance(), file, *archive,
                                       absolutePath() + relative, &error);
        if (!isCopied || !error.isEmpty()) {
            failedFiles.append(relative);
        }
        if (!progress.step()) {
            break;
        }
    }
    isCanceled = progress.isCanceled();
    for (const QPointer<Project>& project : opened) {
        if (project) {
            project->reload();
        }
        progress.step();
    }
    pause.reset();
}

bool ParentProject::restoreBackup(const QString& folderName)
{
    d->beginWork();
    if (archive()->isReadOnly() || !NewBackup::isWholeName(folderName)) {
        return false;
    }
    d->copyBackup(absolutePath() + QLatin1String("backup/") + folderName + QLatin1Char('/'));
    if (Interface* host = Interface::instance()) {
        host->refreshProjects();
    }
    return true;
}

}  // namespace Zorv
