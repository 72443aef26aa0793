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

/// The private data of a `ParentProject`, which is also the root node of its
/// tree.
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

    /// The components of a path below the root. Empty for the root itself.
    QStringList splitPath(const QString& path) const;
    BasePath* findPath(const QString& path);

    /// Adds the missing folders of a path below `parentPath`. Null if the path
    /// has no component.
    BasePath* addPath(BasePath* parentPath, const QString& path, ParentProject::PathType type,
                      const QStringList& filters);
    void removePath(const QString& path);

    void addRef(CodeDocument* main);
    void release(Project* project);

    /// Updates the files shown below a project's node, if the list has changed.
    void updateProjectFiles(CodeDocument* main);

    static void listProjects(const BasePath* path, QStringList& list);

    /// Changes the root folder of the tree. Listed folders are read again from
    /// the new root, and open projects move to where their main documents are
    /// now.
    void moveRoot(const QString& rootPath);

    /// The open projects. Guarded pointers, because the user may close a
    /// project while the progress display processes events.
    QVector<QPointer<Project>> openProjects() const;

    /// Clears the results of the last operation.
    void beginWork();

    /// Collects the files that `saveAll()` could not write. `place` is the
    /// project's folder relative to the root.
    void addFailedFiles(const Project& project, const QString& place);

    /// The implementation of the operations on all projects.
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
    EngineRun* engineRun = nullptr;  ///< null unless an engine is running

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
