#include "editors/framework/fileeditor.h"

#include "core/dialogs/dialogs.h"
#include "core/fileinput.h"
#include "core/filesystemarchive.h"
#include "core/interface.h"
#include "core/messages.h"
#include "core/project.h"
#include "core/projectfile.h"

#include <QFileInfo>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int SavedWithOwner = 1;

/// The pairs of a `fileFilter()`.
struct Filters
{
    QStringList labels;
    QStringList extensions;

    explicit Filters(const QString& text)
    {
        const QStringList items = text.split(QLatin1Char(';'));
        for (int i = 0; i + 1 < items.size(); i += 2) {
            labels.append(items.at(i));
            extensions.append(items.at(i + 1));
        }
    }

    /// In the format of Qt's file dialogs: "Picture (*.png);;Palette (*.act)".
    QString forDialog() const
    {
        QStringList entries;
        for (int i = 0; i < labels.size(); ++i) {
            entries.append(QStringLiteral("%1 (*").arg(labels.at(i)) + extensions.at(i) +
                           QLatin1Char(')'));
        }
        return entries.join(QLatin1String(";;"));
    }

    QString allTogether(const QString& label) const
    {
        return QStringLiteral("%1 (*%2);;").arg(label, extensions.join(QLatin1String(" *")));
    }
};

QString startFolder(const ProjectFile& file, const QString& key)
{
    const Project* project = file.project();
    const auto option = [&](const QString& name) {
        return (project ? project->option(name) : file.option(name)).toString();
    };
    const QString folder = option(key);
    return folder.isEmpty() ? option(QStringLiteral("project_path")) : folder;
}

void rememberFolder(const ProjectFile& file, const QString& key, const QString& fileName)
{
    if (Project* project = file.project()) {
        project->setOption(key, QFileInfo(fileName).absolutePath(), true);
    }
}

QString shownName(const ProjectFile& file)
{
    return file.messages() ? file.messages()->fileString() : QString();
}

bool isInProject(const ProjectFile& file, const QString& fileName)
{
    const Project* project = file.project();
    return project && fileName.startsWith(project->absolutePath());
}

QString externalTitle()
{
    return FileEditor::tr("External file!");
}

}  // namespace

QString FileEditor::fileFilter() const
{
    return {};
}

bool FileEditor::canDiscardInput() const
{
    return true;
}

bool FileEditor::canDiscard() const
{
    if (!canDiscardInput()) {
        return false;
    }
    const ProjectFile* current = file();
    if (!current || (current->capabilities() & SavedWithOwner) || !current->isModified()) {
        return true;
    }
    return Dialogs::instance()->question(
               tr("Discard changes?"),
               tr("Do you want to discard the changes made in %1?").arg(shownName(*current)),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

void FileEditor::comeForward()
{
    if (!isActive()) {
        host()->activateEditor(this);
    }
}

void FileEditor::reset()
{
    comeForward();
    ProjectFile* current = file();
    if (!current || !canDiscard()) {
        return;
    }
    current->reset();
    if (canEditFileType() == 1) {
        Dialogs::instance()->warning(tr("No file reference!"),
                                     tr("Without a real file reference, some functions may not "
                                        "work properly until you save it."));
    }
    emit modified();
}

void FileEditor::open()
{
    comeForward();
    ProjectFile* current = file();
    if (!current) {
        return;
    }
    const QString key = name() + QLatin1String("_path");
    const Filters filters(fileFilter());
    QString filter = filters.forDialog();
    if (filters.labels.size() > 1) {
        filter.prepend(filters.allTogether(host()->text(7)));
    }
    const QString fileName =
        getOpenFileName(host()->mainWindow(), tr("Open %1...").arg(shownName(*current)),
                        startFolder(*current, key), filter);
    if (fileName.isEmpty()) {
        return;
    }
    const bool asCopy =
        !isInProject(*current, fileName) &&
        Dialogs::instance()->warning(
            externalTitle(),
            tr("This file isn't a child of the project directory, so will be ignored on 'Run in "
               "engine', 'Backup' and 'Save as' functions. Do you want to load it as copy?\nNote: "
               "As copy, if you save it the previous file will be overwritten!"),
            Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
    current->fromFile(*FileSystemArchive::instance(), fileName, asCopy);
    rememberFolder(*current, key, fileName);
    emit modified();
}

void FileEditor::save()
{
    comeForward();
    ProjectFile* current = file();
    if (!current || !isModified() || !current->canSave()) {
        return;
    }
    FileInput::take(current);
    Archive* archive = current->archive();
    if (archive && current->toFile(*archive, current->fileName(), false)) {
        emit modified();
    } else {
        saveAs();
    }
}

void FileEditor::saveAs()
{
    comeForward();
    if (ProjectFile* current = file()) {
        saveFileAs(current, this, host());
    }
}

bool FileEditor::saveFileAs(ProjectFile* file, FileEditor* editor, Interface* interface)
{
    const Filters filters(editor->fileFilter());
    if (filters.labels.isEmpty() || !file->canSave()) {
        return false;
    }
    const QString key = editor->name() + QLatin1String("_path");
    QString fileName =
        getSaveFileName(interface->mainWindow(), tr("Save %1 as...").arg(shownName(*file)),
                        startFolder(*file, key), filters.forDialog());
    if (fileName.isEmpty()) {
        return false;
    }
    // The save dialog adds an extension in the same way, and has already asked about
    // overwriting that file.
    const bool hasExtension = std::any_of(
        filters.extensions.begin(), filters.extensions.end(), [&](const QString& extension) {
            return fileName.endsWith(extension, Qt::CaseInsensitive);
        });
    if (!hasExtension) {
        fileName += filters.extensions.first();
    }
    // Ask even for a file inside the project: the answer also decides whether the
    // project continues with the new file or keeps the old one.
    const bool asCopy =
        Dialogs::instance()->question(
            externalTitle(),
            tr("This file isn't a child of the project directory, so will be ignored on 'Run in "
               "engine', 'Backup' and 'Save as' functions. Do you want to save it as copy?\nNote: "
               "As copy, we keep the reference to the previous file!"),
            Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
    FileInput::take(file);
    const bool isWritten = file->toFile(*FileSystemArchive::instance(), fileName, asCopy);
    rememberFolder(*file, key, fileName);
    emit editor->modified();
    return isWritten;
}

}  // namespace Zorv
