#include "operations/sharedfiles.h"

#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"

#include <zorv/core/files.h>
#include <zorv/core/filesystemarchive.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace Operations {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;

QList<FamilyProject*> openProjectsOf(const FamilyParentProject& game)
{
    QList<FamilyProject*> result;
    for (Zorv::Project* project : game.openedProjects()) {
        if (auto* own = qobject_cast<FamilyProject*>(project)) {
            result.append(own);
        }
    }
    return result;
}

FamilyDocument* openDocumentOf(const FamilyParentProject& game, const QString& file)
{
    const QString fileName = QDir::cleanPath(game.absolutePath() + file);
    FamilyDocument* found = nullptr;
    for (const FamilyProject* project : openProjectsOf(game)) {
        for (FamilyDocument* document : project->documents()) {
            const bool isIt = QDir::cleanPath(document->fileName()) == fileName;
            if (isIt && (!found || document->isModified())) {
                found = document;
            }
        }
    }
    return found;
}

QStringList moveSharedFiles(FamilyParentProject* game, const QString& oldRoot)
{
    Zorv::FileSystemArchive& disk = *Zorv::FileSystemArchive::instance();
    QList<FamilyDocument*> documents;
    QStringList named, failed;
    for (const FamilyProject* project : openProjectsOf(*game)) {
        documents += project->documents();
        named += project->sharedFiles();
    }
    // If two documents have the same file, the modified one is saved last, so it wins.
    std::stable_partition(documents.begin(), documents.end(),
                          [](const FamilyDocument* document) { return !document->isModified(); });
    for (FamilyDocument* document : qAsConst(documents)) {
        const QString name = document->fileName();
        const QString relative = name.mid(oldRoot.size());
        if (name.startsWith(oldRoot) && named.contains(relative) &&
            !document->toFile(disk, game->absolutePath() + relative, false)) {
            failed.append(relative);
        }
    }
    for (const QString& relative : qAsConst(named)) {
        const QString target = game->absolutePath() + relative;
        QString error;
        if (!QFileInfo::exists(target) && QFileInfo::exists(oldRoot + relative) &&
            !(copyFile(disk, oldRoot + relative, disk, target, &error) && error.isEmpty())) {
            failed.append(relative);
        }
    }
    failed.removeDuplicates();
    return failed;
}

}  // namespace Operations
