#include "app/session/unsavedwork.h"

#include "app/changes/filestates.h"
#include "app/session/gamesession.h"
#include "family/familydocument.h"
#include "operations/documentfile.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/filechange.h>
#include <zorv/core/fileinput.h>
#include <zorv/core/files.h>
#include <zorv/core/filewatchobject.h>
#include <zorv/core/interface.h>
#include <zorv/core/project.h>
#include <zorv/editors/framework/fileeditor.h>

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <algorithm>

// Saving has four steps. First, edits that are still in an editor are stored in their file objects.
// Second, the objects are grouped by file name: several projects can each have an object of one
// file, and if their contents differ the user chooses one. Third, the files are written; the file
// watch of the other objects is paused so that they do not report this change. Fourth, those
// objects reload the written file.
//
// Errors are collected and shown together at the end.

namespace App {

using Family::FamilyDocument;
using Zorv::Dialogs;
using Zorv::FileInput;
using Zorv::ProjectFile;

namespace {

enum Answer { Cancel = -1, Save = 0, Discard = 1 };

constexpr int MaxNames = 8;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::UnsavedWork)
};

QString namesOf(const QList<ProjectFile*>& files)
{
    QStringList names;
    for (const ProjectFile* file : files) {
        const QString name = QDir::toNativeSeparators(file->fileName());
        names.append(name.isEmpty() ? Text::tr("new file")
                     : isGone(file) ? Text::tr("%1 (no longer on the disk)").arg(name)
                                    : name);
    }
    const int more = names.size() - MaxNames;
    if (more > 0) {
        names = names.mid(0, MaxNames);
        names.append(Text::tr("and %n more", nullptr, more));
    }
    return names.join(QLatin1Char('\n'));
}

QString projectTitle(const ProjectFile* file)
{
    const Zorv::Project* project = file->project();
    return project ? project->title() : QString();
}

/// Objects of one file in several projects. One of them is saved.
struct Twins
{
    ProjectFile* chosen;
    QList<ProjectFile*> others;
};

/// The document; null for sprites and sounds, whose contents are not compared.
FamilyDocument* documentOf(ProjectFile* file)
{
    return dynamic_cast<FamilyDocument*>(file);
}

void pauseWatch(ProjectFile* file, bool isPaused)
{
    if (auto* watched = dynamic_cast<Zorv::FileWatchObject*>(file)) {
        watched->pauseWatch(isPaused);
    }
}

bool haveOneContent(const QList<ProjectFile*>& files)
{
    const FamilyDocument* first = documentOf(files.first());
    return files.size() == 1 ||
           (first && std::all_of(files.begin(), files.end(), [first](ProjectFile* file) {
                const FamilyDocument* document = documentOf(file);
                return document && document->text() == first->text();
            }));
}

/// The objects of each file; objects without a file are left out.
QMap<QString, QList<ProjectFile*>> byFileName(const QList<ProjectFile*>& files)
{
    QMap<QString, QList<ProjectFile*>> result;
    for (ProjectFile* file : files) {
        result[file->fileName()].append(file);
    }
    result.remove(QString());
    return result;
}

/// The index of the object to save; -1 if the user cancels.
int chooseTwin(const QList<ProjectFile*>& files)
{
    QStringList choices;
    for (const ProjectFile* file : files) {
        choices.append(Text::tr("Save the file of %1").arg(projectTitle(file)));
    }
    return Dialogs::instance()->choose(
        Text::tr("Save"),
        Text::tr("%1 belongs to several projects, and was changed in them in different ways. The "
                 "changes of one can be saved; the others are lost.")
            .arg(QDir::toNativeSeparators(files.first()->fileName())),
        choices, 0);
}

/// If objects share a path and differ, keeps one of them in `files` and adds the group to `twins`.
/// False if the user cancels.
bool settleTwins(QList<ProjectFile*>* files, QList<Twins>* twins)
{
    const QMap<QString, QList<ProjectFile*>> byFile = byFileName(*files);
    for (QList<ProjectFile*> sharing : byFile) {
        if (haveOneContent(sharing)) {
            continue;
        }
        const int choice = chooseTwin(sharing);
        if (choice < 0) {
            return false;
        }
        ProjectFile* chosen = sharing.takeAt(choice);
        for (ProjectFile* other : qAsConst(sharing)) {
            files->removeOne(other);
        }
        twins->append({chosen, sharing});
    }
    return true;
}

/// The objects that were not chosen reload the saved file. If it was not written, nothing changes.
bool readSaved(const Twins& twins)
{
    bool all = true;
    for (ProjectFile* other : twins.others) {
        if (twins.chosen->isModified()) {
            pauseWatch(other, false);
            all = false;
        } else {
            all = readAgain(other) && all;
        }
    }
    return all;
}

/// Asks for the name of a document that has none.
Operations::Saved saveNew(FamilyDocument* document, QString* error)
{
    Zorv::Interface* host = Zorv::Interface::instance();
    auto* editor = qobject_cast<Zorv::FileEditor*>(
        host->fileEditor(document, Family::fileType(document->kind())));
    if (!editor || !Operations::settleEncoding(document)) {
        return Operations::Saved::GivenUp;
    }
    if (Zorv::FileEditor::saveFileAs(document, editor, host)) {
        return Operations::Saved::Done;
    }
    *error = document->errorString();
    return error->isEmpty() ? Operations::Saved::GivenUp : Operations::Saved::Failed;
}

Operations::Saved writeFile(ProjectFile* file, QString* error)
{
    FamilyDocument* document = documentOf(file);
    if (document) {
        return document->fileName().isEmpty()
                   ? saveNew(document, error)
                   : Operations::saveDocument(document, document->fileName(), error);
    }
    const bool isSaved = file->toFile(*file->archive(), file->fileName(), false);
    *error = file->errorString();
    return isSaved ? Operations::Saved::Done : Operations::Saved::Failed;
}

/// Asks before overwriting changes of another program. If another program is writing right now, the
/// file is left alone, and the user is asked as for any other change.
Operations::Saved saveFile(ProjectFile* file, QString* error)
{
    FileStates* states = FileStates::instance();
    const auto answer = states ? states->askBeforeWriting(file) : FileStates::Write;
    if (answer != FileStates::Write) {
        return answer == FileStates::Read ? Operations::Saved::Done : Operations::Saved::GivenUp;
    }
    if (isGone(file)) {
        Zorv::forcePath(file->fileName());
    }
    const Zorv::FileChange change(file->fileName());
    const Operations::Saved saved = writeFile(file, error);
    if (change.isOvertaken()) {
        pauseWatch(file, false);
    }
    return saved;
}

QString questionAbout(bool isOne, bool areChanged)
{
    if (areChanged) {
        return isOne ? Text::tr("This file has unsaved changes:")
                     : Text::tr("These files have unsaved changes:");
    }
    return isOne ? Text::tr("This file is no longer on the disk. What is open here is its last "
                            "copy:")
                 : Text::tr("These files have unsaved changes, or are no longer on the disk. What "
                            "is open here is their last copy:");
}

/// False if the user cancels or a file fails; `errors` has the reasons.
bool writeAll(QList<ProjectFile*> files, QStringList* errors)
{
    QList<Twins> twins;
    if (!settleTwins(&files, &twins)) {
        return false;
    }
    for (const Twins& sharing : qAsConst(twins)) {
        for (ProjectFile* other : sharing.others) {
            // No report by the file watch: the object is updated here.
            pauseWatch(other, true);
        }
    }
    bool all = true;
    for (ProjectFile* file : qAsConst(files)) {
        QString error;
        const Operations::Saved saved = saveFile(file, &error);
        all = all && saved == Operations::Saved::Done;
        if (saved == Operations::Saved::Failed) {
            errors->append(error);
        }
    }
    for (const Twins& sharing : qAsConst(twins)) {
        all = readSaved(sharing) && all;
    }
    return all;
}

}  // namespace

bool readAgain(ProjectFile* file)
{
    auto* watched = dynamic_cast<Zorv::FileWatchObject*>(file);
    const bool isRead =
        watched ? watched->reload() : file->fromFile(*file->archive(), file->fileName(), false);
    if (isRead) {
        FileInput::drop(file);
    }
    return isRead;
}

bool saveFiles(QList<ProjectFile*> files)
{
    QStringList errors;
    bool all = true;
    for (const ProjectFile* file : qAsConst(files)) {
        all = FileInput::take(file, &errors) && all;
    }
    all = writeAll(std::move(files), &errors) && all;
    if (!errors.isEmpty()) {
        Dialogs::instance()->error(Text::tr("Save"), errors.join(QLatin1Char('\n')));
    }
    return all;
}

QString fileWithTwoContents(const QList<ProjectFile*>& files)
{
    const QMap<QString, QList<ProjectFile*>> byFile = byFileName(files);
    for (auto it = byFile.constBegin(); it != byFile.constEnd(); ++it) {
        if (!haveOneContent(it.value())) {
            return it.key();
        }
    }
    return {};
}

bool askAboutUnsaved(const QList<ProjectFile*>& files)
{
    if (files.isEmpty()) {
        return true;
    }
    const bool isOne = files.size() == 1;
    const bool areChanged = std::all_of(files.begin(), files.end(), [](const ProjectFile* file) {
        return FileInput::isUnsaved(file);
    });
    const QStringList choices{isOne ? Text::tr("Save") : Text::tr("Save all"),
                              areChanged ? Text::tr("Discard the changes")
                                         : Text::tr("Close without saving")};
    switch (Dialogs::instance()->choose(
        Text::tr("Unsaved changes"),
        questionAbout(isOne, areChanged) + QLatin1String("\n\n") + namesOf(files), choices, Save)) {
    case Save:
        return saveFiles(files);
    case Discard:
        return true;
    default:
        return false;
    }
}

}  // namespace App
