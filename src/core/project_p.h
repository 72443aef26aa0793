#pragma once

#include "core/messagelist.h"
#include "core/project.h"

#include <QPointer>
#include <QSet>
#include <QVector>

namespace Zorv {

/// The private data of a project, which is also the list of all its messages.
class ProjectPrivate : public MessageList
{
public:
    ProjectPrivate(Project* project, ParentProject* parentProject)
        : MessageList(project), parent(parentProject)
    {
    }

    /// Copies files of the project, given by relative paths, to `targetRoot`, which is inside the
    /// folder `path`. Part of `saveAll()`.
    void copyFiles(const QStringList& names, const QString& path, const QString& targetRoot);

    ParentProject* parent;
    QMap<QString, QVariant> options;
    QSet<ProjectFile*> known;  ///< all files that point to this project, even if taken out
    QMap<ProjectFile*, FileID> fileIDs;
    QMap<FileID::Type, unsigned> selected;
    QMap<FileID::Type, QList<ProjectFile*>> files;
    QStringList failedFiles;
    bool hasWriteFailure = false;  ///< `saveAll()` failed for more than missing source files
};

/// Remembers where a project and its files are, to go back after an incomplete move.
class Project::Place
{
public:
    explicit Place(Project* project);

    /// Restores the archives, and the names and modified states of documents. Files of other
    /// classes are reloaded from their old place, with unsaved changes taken from the new place. If
    /// the old file no longer exists, such a file stays at the new place.
    void goBack();

private:
    struct File
    {
        ProjectFile* file;
        Archive* archive;
        QString name;
        bool isModified;
    };
    static void takeDocumentBack(const File& file);
    static void readBack(const File& file);

    QPointer<Project> m_project;
    Archive* m_archive;
    QVector<File> m_files;
};

}  // namespace Zorv
