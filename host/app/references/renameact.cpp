#include "app/references/renameact.h"

#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/archive.h>
#include <zorv/core/filewatchobject.h>

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

// The changes are first written to disk as a whole, with all open files' watches paused. Then each
// open file follows. In a text, the renamed lines are edited as one undo step. The result should
// equal the file, and is saved to mark it as saved; if it differs, the text is reloaded. Sprites
// and sounds are reloaded.
//
// To undo a rename, the same act runs with old and new contents swapped.

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Operations::ChangeSet;
using Operations::RenamedLine;

namespace {

/// An open file of the rename.
struct OpenFile
{
    QString path;
    QPointer<FamilyDocument> document;
    QPointer<Family::SpriteCollection> sprites;
    QPointer<Family::SoundFile> sounds;

    Zorv::ProjectFile* collection() const
    {
        return sprites ? static_cast<Zorv::ProjectFile*>(sprites.data()) : sounds.data();
    }
    Zorv::FileWatchObject* watched() const
    {
        return document  ? static_cast<Zorv::FileWatchObject*>(document.data())
               : sprites ? dynamic_cast<Zorv::FileWatchObject*>(sprites.data())
                         : dynamic_cast<Zorv::FileWatchObject*>(sounds.data());
    }
};

QString cleaned(const QString& path)
{
    return QDir::cleanPath(path);
}

QSet<QString> pathsOf(const ChangeSet& changes)
{
    QSet<QString> paths;
    for (const ChangeSet::Text& text : changes.texts) {
        paths.insert(text.path);
    }
    for (const ChangeSet::Asset& asset : changes.assets) {
        paths.insert(asset.path);
    }
    for (const ChangeSet::Move& move : changes.moves) {
        paths.insert(move.from);
    }
    return paths;
}

/// Several projects can each have an object of the same file.
QVector<OpenFile> openFilesOf(const ChangeSet& changes, const GameSession& session)
{
    const QSet<QString> paths = pathsOf(changes);
    QVector<OpenFile> files;
    for (const FamilyProject* project : session.projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            if (paths.contains(cleaned(document->fileName()))) {
                files.append({cleaned(document->fileName()), document, {}, {}});
            }
        }
        if (project->sprites() && paths.contains(cleaned(project->sprites()->fileName()))) {
            files.append({cleaned(project->sprites()->fileName()), {}, project->sprites(), {}});
        }
        if (project->sounds() && paths.contains(cleaned(project->sounds()->fileName()))) {
            files.append({cleaned(project->sounds()->fileName()), {}, {}, project->sounds()});
        }
    }
    return files;
}

/// Replaces only the part of a line that differs, so that cursors beside it do not move.
void replaceLine(FamilyDocument* document, const RenamedLine& line)
{
    const QTextBlock block = document->findBlockByNumber(line.line - 1);
    const QString& now = line.after;
    const QString old = block.text();
    const int most = std::min(old.size(), now.size());
    int head = 0;
    while (head < most && old.at(head) == now.at(head)) {
        ++head;
    }
    int tail = 0;
    while (tail < most - head && old.at(old.size() - 1 - tail) == now.at(now.size() - 1 - tail)) {
        ++tail;
    }
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + head);
    cursor.setPosition(block.position() + old.size() - tail, QTextCursor::KeepAnchor);
    document->replaceSelection(now.mid(head, now.size() - head - tail), cursor);
}

void editText(FamilyDocument* document, const QString& path, const QVector<RenamedLine>& lines,
              const QString& title)
{
    document->beginChange(title);
    for (const RenamedLine& line : lines) {
        const QString text = document->findBlockByNumber(line.line - 1).text();
        if (line.path == path && line.line > 0 && text == line.before) {
            replaceLine(document, line);
        }
    }
    document->endChange();
}

/// Returns an error, or an empty text. Saving updates the name, the file watch and the state of the
/// text; the file already has this content. If it does not, someone else wrote it or the text has
/// another encoding, and the file wins.
QString followText(FamilyDocument* document, const QString& newPath)
{
    Zorv::Archive& archive = *document->archive();
    Zorv::FileText disk;
    QString error;
    if (!disk.read(archive, newPath, document->codecId(), &error)) {
        return error;
    }
    const bool isDone = disk.text == document->text()
                            ? document->toFile(archive, newPath, false)
                            : document->fromFile(archive, newPath, document->codecId(), false);
    return isDone ? QString() : document->errorString();
}

QString follow(const OpenFile& file, const QString& newPath, const QVector<RenamedLine>& lines,
               const QString& title)
{
    if (FamilyDocument* document = file.document) {
        editText(document, file.path, lines, title);
        return followText(document, newPath);
    }
    Zorv::ProjectFile* collection = file.collection();
    if (!collection) {
        return {};
    }
    const bool isRead = newPath == file.path
                            ? readAgain(collection)
                            : collection->fromFile(*collection->archive(), newPath, false);
    return isRead ? QString() : collection->errorString();
}

}  // namespace

RenameAct::RenameAct(const Operations::RenamePlan& plan, const QString& gameFolder)
    : m_gameFolder(gameFolder), m_name(plan.name), m_oldName(plan.subject.shown()),
      m_changes(plan.changes), m_lines(plan.lines)
{
}

bool RenameAct::run(GameSession* session, const QString& title, QString* error)
{
    const QVector<OpenFile> files = openFilesOf(m_changes, *session);
    for (const OpenFile& file : files) {
        file.watched()->pauseWatch(true);
    }
    const bool isDone = Operations::writeChanges(m_changes, m_gameFolder, error);
    QStringList faults;
    for (const OpenFile& file : files) {
        if (isDone) {
            const QString newPath = m_changes.movedPath(file.path);
            const QString fault = follow(file, newPath, m_lines, title);
            faults += fault.isEmpty() ? QStringList() : QStringList(fault);
        }
    }
    // Only after all files: two projects can share one file.
    for (const OpenFile& file : files) {
        if (Zorv::FileWatchObject* watched = file.watched()) {
            watched->endPause();
        }
    }
    // Saving may have changed the line endings of open texts, so the stored change is adjusted.
    for (ChangeSet::Text& text : m_changes.texts) {
        QFile saved(m_changes.movedPath(text.path));
        const bool isOpen = std::any_of(files.begin(), files.end(), [&](const OpenFile& file) {
            return file.path == text.path;
        });
        if (isDone && isOpen && saved.open(QIODevice::ReadOnly)) {
            text.after = saved.readAll();
        }
    }
    if (isDone) {
        *error = faults.join(QLatin1Char('\n'));
    }
    return isDone;
}

RenameAct RenameAct::reversed() const
{
    RenameAct back = *this;
    back.m_changes = m_changes.reversed();
    std::swap(back.m_name, back.m_oldName);
    for (RenamedLine& line : back.m_lines) {
        line.path = m_changes.movedPath(line.path);
        std::swap(line.before, line.after);
    }
    return back;
}

QStringList RenameAct::unsavedFiles(const GameSession& session) const
{
    QStringList files;
    const QSet<QString> unsaved = unsavedPaths(session) & pathsOf(m_changes);
    for (const QString& path : unsaved) {
        files.append(session.shownPath(path));
    }
    files.sort();
    return files;
}

QSet<QString> unsavedPaths(const GameSession& session)
{
    QSet<QString> paths;
    const QList<Zorv::ProjectFile*> files = session.modifiedFiles();
    for (const Zorv::ProjectFile* file : files) {
        paths.insert(cleaned(file->fileName()));
    }
    return paths;
}

}  // namespace App
