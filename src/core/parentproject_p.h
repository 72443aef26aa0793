#pragma once

#include "core/paths_p.h"
#include "core/project.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QVector>

namespace Zorv {

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

    ParentProject* model;
    Archive* archive;
    int count = 0;

    struct OpenProject
    {
        BasePath* node = nullptr;
        QList<Project::FileInfo> files;  ///< sorted by path
    };
    QMap<Project*, OpenProject> projects;

private:
    using FileSet = QHash<QString, FileID>;

    void mainChanged();
    void folderChanged(const QString& path);
    void showFiles(BasePath* node);
    void removeNode(BasePath* node);
    QList<Project::FileInfo> filesOf(BasePath* node) const;
    void removeIfNotExists(BasePath* node, const QString& prefix, const FileSet& files,
                           QVector<DirectoryPath*>& reduced);
    bool staysInTree(BasePath* child, const QString& prefix, const FileSet& files,
                     QVector<DirectoryPath*>& reduced);
    void addFiles(BasePath* node, const QList<Project::FileInfo>& files);

    QFileSystemWatcher m_watcher;
};

}  // namespace Zorv
