#pragma once

#include "core/paths_p.h"
#include "core/project.h"
#include "core/watcher_p.h"

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVector>

namespace Zorv {

class Progress;

class EngineProcess;
class EngineRun;

/// The private part of a parent project is itself the root of its tree.
class ParentProjectPrivate : public QObject, public DirectoryPath
{
public:
    ParentProjectPrivate(ParentProject* parentProject, const QString& rootPath,
                         Archive& rootArchive);
    ~ParentProjectPrivate() override;

    void childsRemoved(BasePath* path) override;
    void childsAdded(BasePath* path) override;
    QFileSystemWatcher* watcher() override;

    QModelIndex indexOf(BasePath* path) const;

    /// The components of a path below the root; empty for the root.
    QStringList splitPath(const QString& path) const;
    BasePath* findPath(const QString& path);

    /// Adds what is missing of a path below `parentPath`; null for no component.
    BasePath* addPath(BasePath* parentPath, const QString& path, ParentProject::PathType type,
                      const QStringList& filters);
    void removePath(const QString& path);

    void addRef(CodeDocument* main);
    void release(Project* project);

    /// Brings the files of a project's node up to date, if their list differs
    /// from the last one.
    void updateProjectFiles(CodeDocument* main);

    static void listProjects(const BasePath* path, QStringList& list);

    /// Lets the tree stand for another folder. What is listed is that of the new
    /// one, and open projects stand where their main documents are now.
    void moveRoot(const QString& rootPath);

    /// The open projects. The display of a piece of work may let the person
    /// close one meanwhile.
    QVector<QPointer<Project>> openProjects() const;

    /// Forgets what the last piece of work has left.
    void beginWork();

    /// Takes over what `saveAll()` could not write. `place` is the project's
    /// folder relative to the root.
    void addFailedFiles(const Project& project, const QString& place);

    /// The work of the operations on all projects.
    bool copyProjects(const QString& folder);
    void copyBackup(const QString& source);
    void saveProjectAs(Project* project, const QString& fileName);
    void saveGameAs(const QString& newRoot);

    ParentProject* model;
    Archive* archive;
    int count = 0;
    QStringList failedFiles;
    bool isCanceled = false;

    struct OpenProject
    {
        BasePath* node = nullptr;
        QList<Project::FileInfo> files;  ///< sorted by path
    };
    QMap<Project*, OpenProject> projects;

    bool runnable = true;  ///< false while an engine runs
    RunResult runResult;
    QPointer<EngineProcess> engine;
    EngineRun* engineRun = nullptr;  ///< while its engine runs

private:
    using FileSet = QHash<QString, FileID>;

    void mainChanged();
    void folderChanged(const QString& path);
    QStringList closedFiles() const;
    bool copyClosedFiles(const QStringList& files, const QString& newRoot, Progress& progress);
    bool writeProject(Project& project, const QString& path, const QString& mainFile);
    bool writeProjects(const QVector<QPointer<Project>>& opened, const QString& newRoot,
                       Progress& progress);
    void placeProject(CodeDocument* main);
    void leaveNode(BasePath* node, Project* project);
    void listAgain(BasePath* node);
    void showFiles(BasePath* node);
    void removeNode(BasePath* node);
    QList<Project::FileInfo> filesOf(BasePath* node) const;
    void removeIfNotExists(BasePath* node, const QString& prefix, const FileSet& files,
                           QVector<DirectoryPath*>& reduced);
    bool staysInTree(BasePath* child, const QString& prefix, const FileSet& files,
                     QVector<DirectoryPath*>& reduced);
    void addFiles(BasePath* node, const QList<Project::FileInfo>& files);

    WatcherPtr m_watcher;  ///< null if nothing is watched
};

}  // namespace Zorv
