#include "core/parentproject.h"

#include "core/archive.h"
#include "core/fileinput.h"
#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/lazysync_p.h"
#include "core/parentproject_p.h"
#include "core/progress.h"
#include "core/project_p.h"
#include "core/projectfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <vector>

// How a game moves to a new folder:
//
// The old places of all open projects are recorded first (`Project::Place`). Then the files of
// closed projects are copied, and the open projects are written from memory. If all open projects
// could be written, the tree changes its root folder. Otherwise, or if the user cancels, every open
// project goes back to its old place. The old files are never deleted.

namespace Zorv {

namespace {

bool isBelow(const QString& fileName, const QString& folder)
{
    return QDir::cleanPath(fileName).startsWith(QDir::cleanPath(folder) + QLatin1Char('/'));
}

}  // namespace

void ParentProject::saveAs(const QString& newRoot)
{
    d->beginWork();
    FileInput::takeOf(this);
    if (d->projects.size() == 1 && !isGame()) {
        d->saveProjectAs(d->projects.firstKey(), newRoot);
    } else {
        d->saveGameAs(newRoot.endsWith(QLatin1Char('/')) ? newRoot : newRoot + QLatin1Char('/'));
    }
}

void ParentProjectPrivate::saveProjectAs(Project* project, const QString& fileName)
{
    const QString newPath = QFileInfo(fileName).absolutePath();
    Project::Place place(project);
    const LazySync lazy;
    if (writeProject(*project, newPath + QLatin1Char('/'), fileName)) {
        moveRoot(newPath);
    } else {
        place.goBack();
    }
}

void ParentProjectPrivate::saveGameAs(const QString& newRoot)
{
    const QStringList files = closedFiles();
    const QVector<QPointer<Project>> opened = openProjects();
    std::vector<Project::Place> places;
    for (const QPointer<Project>& project : opened) {
        places.emplace_back(project);
    }
    const LazySync lazy;
    Progress progress(ParentProject::tr("Saving..."), files.size() + opened.size());
    const bool isWhole = copyClosedFiles(files, newRoot, progress) &&
                         writeProjects(opened, newRoot + QLatin1Char('/'), progress);
    isCanceled = progress.isCanceled();
    if (isWhole && !isCanceled) {
        moveRoot(newRoot);
        return;
    }
    for (Project::Place& place : places) {
        place.goBack();
    }
}

QStringList ParentProjectPrivate::closedFiles() const
{
    QStringList closed, files;
    listProjects(this, closed);
    for (const QString& path : qAsConst(closed)) {
        model->projectFiles(path, files);
    }
    return files;
}

// A failure in a closed project is reported but does not stop the move.
bool ParentProjectPrivate::copyClosedFiles(const QStringList& files, const QString& newRoot,
                                           Progress& progress)
{
    for (const QString& file : files) {
        const QString source = absolutePath() + file;
        const QString target = newRoot + file;
        QString error;
        const bool isCopied =
            isBelow(target, newRoot) && forcePath(target) &&
            copyFile(*archive, source, *FileSystemArchive::instance(), target, &error);
        if (!isCopied || !error.isEmpty()) {
            failedFiles.append(file);
        }
        if (!progress.step()) {
            return false;
        }
    }
    return true;
}

// Returns false if the project cannot continue at the new place.
bool ParentProjectPrivate::writeProject(Project& project, const QString& path,
                                        const QString& mainFile)
{
    const QString place = project.basePath();
    const bool hasPlace = !project.fileName().isEmpty();
    if (hasPlace) {
        project.saveAll(path, false, nullptr);
        addFailedFiles(project, place);
    }
    ProjectFile* main = project.file(FileID::MainCode);
    const LazySync::Exception waits(main &&
                                    (main->isModified() || !QFile::exists(main->fileName())));
    const bool isWritten = main && forcePath(mainFile) &&
                           main->toFile(*FileSystemArchive::instance(), mainFile, false);
    if (!isWritten) {
        failedFiles.append((hasPlace ? place : QString()) + QFileInfo(mainFile).fileName());
    }
    return isWritten && !(hasPlace && project.d->hasWriteFailure);
}

bool ParentProjectPrivate::writeProjects(const QVector<QPointer<Project>>& opened,
                                         const QString& newRoot, Progress& progress)
{
    bool isWhole = true;
    for (const QPointer<Project>& project : opened) {
        const QString name = project ? QFileInfo(project->fileName()).fileName() : QString();
        if (!name.isEmpty()) {
            isWhole =
                writeProject(*project, newRoot, newRoot + project->basePath() + name) && isWhole;
        } else if (project) {
            // A project that was never saved has no place in the game folder yet.
            failedFiles.append(project->title());
        }
        if (!progress.step()) {
            return false;
        }
    }
    return isWhole;
}

}  // namespace Zorv
