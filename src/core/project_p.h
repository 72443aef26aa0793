#pragma once

#include "core/messagelist.h"
#include "core/project.h"

#include <QSet>

namespace Zorv {

/// The private part of a project is itself the list of all its messages.
class ProjectPrivate : public MessageList
{
public:
    ProjectPrivate(Project* project, ParentProject* parentProject)
        : MessageList(project), parent(parentProject)
    {
    }

    ParentProject* parent;
    QMap<QString, QVariant> options;
    QSet<ProjectFile*> known;  ///< all that point to the project, also those taken out
    QMap<ProjectFile*, FileID> fileIDs;
    QMap<FileID::Type, unsigned> selected;
    QMap<FileID::Type, QList<ProjectFile*>> files;
    QStringList failedFiles;
};

}  // namespace Zorv
