#pragma once

#include "core/messagelist.h"
#include "core/project.h"

#include <QPointer>
#include <QSet>
#include <QVector>

namespace Zorv {

/// The private part of a project is itself the list of all its messages.
class ProjectPrivate : public MessageList
{
public:
    ProjectPrivate(Project* project, ParentProject* parentProject)
        : MessageList(project), parent(parentProject)
    {
    }

    /// Copies files of the project, by their relative paths, to `targetRoot`, which
    /// lies in the folder `path`; the work of `saveAll()`.
    void copyFiles(const QStringList& names, const QString& path, const QString& targetRoot);

    ParentProject* parent;
    QMap<QString, QVariant> options;
    QSet<ProjectFile*> known;  ///< all that point to the project, also those taken out
    QMap<ProjectFile*, FileID> fileIDs;
    QMap<FileID::Type, unsigned> selected;
    QMap<FileID::Type, QList<ProjectFile*>> files;
    QStringList failedFiles;
    bool hasWriteFailure = false;  ///< of `saveAll()`: more than files that are not there
};

/// Where a project and its files live, to go back there from a half-done move.
class Project::Place
{
public:
    explicit Place(Project* project);

    /// Archives, and names and modified states of documents, are what they were.
    /// Files of other classes are read again at their old place, and take unsaved
    /// changes over from the new one; one that is not there any more stays at the new.
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
