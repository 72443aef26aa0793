#include "core/parentproject.h"

#include "core/archive.h"
#include "core/fileinput.h"
#include "core/interface.h"
#include "core/messages.h"
#include "core/parentproject_p.h"
#include "core/progress.h"
#include "core/projectfile.h"
#include "editors/framework/fileeditor.h"

#include <QFile>

namespace Zorv {

namespace {

QString shownName(const Project& project, const ProjectFile& file)
{
    const QString name = file.fileName();
    const QString folder = project.absolutePath();
    if (name.isEmpty()) {
        return file.messages() ? file.messages()->fileString() : project.title();
    }
    return name.startsWith(folder) ? name.mid(folder.size()) : name;
}

bool saveUnderNewName(ProjectFile* file, FileID id)
{
    Interface* host = Interface::instance();
    auto* editor = host ? qobject_cast<FileEditor*>(host->fileEditor(file, id)) : nullptr;
    return editor && FileEditor::saveFileAs(file, editor, host);
}

// A dialog may let the user close files that are still to be saved.
void saveModified(const QPointer<Project>& project, QStringList& failed)
{
    const QMap<ProjectFile*, FileID> all = project->filesWithIDs();
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        if (!project || !project->filesWithIDs().contains(it.key())) {
            continue;
        }
        ProjectFile* file = it.key();
        if (!file->isModified() || !file->canSave()) {
            continue;
        }
        const QString shown = shownName(*project, *file);
        const QString name = file->fileName();
        const bool isSaved = QFile::exists(name) ? file->toFile(*file->archive(), name, false)
                                                 : saveUnderNewName(file, it.value());
        if (!isSaved) {
            failed.append(shown);
        }
    }
}

}  // namespace

void ParentProject::save()
{
    d->beginWork();
    FileInput::takeOf(this);
    const QVector<QPointer<Project>> projects = d->openProjects();
    Progress progress(tr("Saving..."), projects.size());
    for (const QPointer<Project>& project : projects) {
        if (project) {
            saveModified(project, d->failedFiles);
        }
        if (!progress.step()) {
            break;
        }
    }
    d->isCanceled = progress.isCanceled();
}

}  // namespace Zorv
