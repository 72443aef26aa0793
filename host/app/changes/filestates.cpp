#include "app/changes/filestates.h"

#include "app/changes/comparedialog.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/workfile.h"
#include "operations/worklines.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/fileinput.h>
#include <zorv/core/filewatchobject.h>
#include <zorv/core/interface.h>
#include <zorv/core/projectfile.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QTimer>

// For each open file, `m_stamps` has the state of the file on disk (size, time, for small texts
// also a hash) when it was last read or written here. A file was changed by another program if its
// current stamp differs.
//
// The marks in the game tree are computed anew on the next turn of the event loop and only passed
// on if they differ. So a signal may come too often, but must not be missed.
//
// Changed files with unsaved edits wait in `m_toAsk`; one loop asks about them one after the other.
// Files without edits are returned to the library, which reloads them.

namespace App {

using Family::FamilyProject;
using Operations::FileStamp;
using Zorv::Dialogs;
using Zorv::FileInput;
using Zorv::ProjectFile;

namespace {

// Some programs save by deleting a file and writing it anew. Wait longer than that takes.
constexpr int SettleMilliseconds = 200;

// Larger texts are compared by size and time only.
constexpr qint64 MaxHashed = 4 * 1024 * 1024;

enum Choice { First, Second, Compare };

}  // namespace

FileStates::FileStates(GameSession* session) : QObject(session), m_session(session)
{
    setInstance(this);
    connect(session, &GameSession::folderOpened, this, [this] {
        m_marks.clear();
        updateSoon();
    });
    connect(session, &GameSession::projectOpened, this, &FileStates::followProject);
    connect(session, &GameSession::projectAboutToClose, this, &FileStates::updateSoon);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &FileStates::updateSoon);
}

FileStates* FileStates::instance()
{
    return dynamic_cast<FileStates*>(FileWatchHandler::instance());
}

bool FileStates::isOvertaken(const ProjectFile* file) const
{
    const auto found = m_stamps.constFind(const_cast<ProjectFile*>(file));
    // A folder in place of a file cannot be overwritten, so it has no contents to lose.
    const auto* sprites = dynamic_cast<const Family::SpriteCollection*>(file);
    if (QFileInfo(file->fileName()).isDir() != (sprites && sprites->isFolder())) {
        return false;
    }
    FileStamp now = FileStamp::of(file->fileName());
    if (found == m_stamps.constEnd() || !found->exists || !now.exists || found->isSameState(now)) {
        return false;
    }
    if (!found->hash.isEmpty() && now.size == found->size) {
        now.addHash(file->fileName());
    }
    return found->hash.isEmpty() || now.hash != found->hash;
}

/// The text after each file name in the tree, by path.
QHash<QString, QString> FileStates::marks() const
{
    QHash<QString, QString> result;
    for (const FamilyProject* project : m_session->projects()) {
        const QList<ProjectFile*> files = project->files();
        for (const ProjectFile* file : files) {
            const QString mark = (FileInput::isUnsaved(file) ? QStringLiteral("*") : QString()) +
                                 (isGone(file) ? QLatin1Char(' ') + tr("(missing)") : QString());
            if (!mark.isEmpty()) {
                result.insert(QDir::cleanPath(file->fileName()), mark);
            }
        }
    }
    return result;
}

void FileStates::followProject(FamilyProject* project)
{
    connect(project, &FamilyProject::filesChanged, this, &FileStates::followAll,
            Qt::UniqueConnection);
    followAll();
}

void FileStates::followAll()
{
    for (const FamilyProject* project : m_session->projects()) {
        const QList<ProjectFile*> files = project->files();
        for (ProjectFile* file : files) {
            if (!m_stamps.contains(file)) {
                follow(file);
            }
        }
    }
    updateSoon();
}

void FileStates::follow(ProjectFile* file)
{
    synchronize(file);
    Operations::WorkEvents events;
    events.changed = [this, file] { noteModified(file); };
    events.synchronized = [this, file] { synchronize(file); };
    events.gone = [this, file] {
        m_stamps.remove(file);
        m_modified.remove(file);
        m_toAsk.remove(file);
    };
    events.changed();
    Operations::followWork(file, this, events);
}

/// Called for each typed letter, so it must be cheap.
void FileStates::noteModified(ProjectFile* file)
{
    const bool isUnsaved = FileInput::isUnsaved(file);
    if (isUnsaved != m_modified.contains(file)) {
        isUnsaved ? void(m_modified.insert(file)) : void(m_modified.remove(file));
        updateSoon();
    }
}

/// Deferred: the caller may be in the middle of an operation.
void FileStates::inputChanged()
{
    if (m_isInputPending) {
        return;
    }
    m_isInputPending = true;
    QTimer::singleShot(0, this, [this] {
        m_isInputPending = false;
        const QList<ProjectFile*> files = m_stamps.keys();
        for (ProjectFile* file : files) {
            noteModified(file);
        }
    });
}

void FileStates::synchronize(ProjectFile* file)
{
    FileStamp stamp = FileStamp::of(file->fileName());
    if (stamp.size <= MaxHashed && dynamic_cast<Family::FamilyDocument*>(file)) {
        stamp.addHash(file->fileName());
    }
    m_stamps.insert(file, stamp);
    m_toAsk.remove(file);
    updateSoon();
}

void FileStates::updateSoon()
{
    if (m_isUpdatePending) {
        return;
    }
    m_isUpdatePending = true;
    QTimer::singleShot(0, this, [this] {
        m_isUpdatePending = false;
        const QHash<QString, QString> now = marks();
        if (now != m_marks) {
            m_marks = now;
            if (m_session->game()) {
                m_session->game()->setFileMarks(now);
            }
            emit changed();
        }
    });
}

void FileStates::fileGone(const QString&)
{
    QTimer::singleShot(SettleMilliseconds, this, &FileStates::updateSoon);
}

QList<Zorv::FileWatchObject*> FileStates::fileChanged(const QString&,
                                                      const QList<Zorv::FileWatchObject*>& objects)
{
    updateSoon();
    QList<Zorv::FileWatchObject*> others;
    for (Zorv::FileWatchObject* object : objects) {
        auto* file = dynamic_cast<ProjectFile*>(object);
        if (file && m_stamps.contains(file) && FileInput::isUnsaved(file)) {
            m_toAsk.insert(file);
            askSoon();
        } else {
            others.append(object);
        }
    }
    return others;
}

void FileStates::askSoon()
{
    QTimer::singleShot(0, this, [this] {
        // The open question's loop also handles what changes meanwhile.
        if (m_isAsking) {
            return;
        }
        const QScopedValueRollback<bool> guard(m_isAsking, true);
        while (!m_toAsk.isEmpty()) {
            ProjectFile* file = *m_toAsk.begin();
            m_toAsk.erase(m_toAsk.begin());
            askAboutChanged(file);
        }
    });
}

void FileStates::askAboutChanged(ProjectFile* file)
{
    if (!FileInput::isUnsaved(file) || !isOvertaken(file)) {
        return;
    }
    const QStringList choices{tr("Keep the changes here"),
                              tr("Read the file, and drop the changes here"), tr("Compare...")};
    const QString name = QDir::toNativeSeparators(file->fileName());
    const int answer = ask(
        file, tr("File modified"),
        tr("%1 was changed by another program or in another project, and has unsaved changes here.")
            .arg(name),
        choices);
    if (answer == Second) {
        read(file);
    }
}

/// Collections report read errors themselves.
bool FileStates::read(ProjectFile* file)
{
    const bool isRead = readAgain(file);
    if (!isRead && dynamic_cast<Family::FamilyDocument*>(file)) {
        Dialogs::instance()->error(tr("File modified"), file->errorString());
    }
    return isRead;
}

FileStates::Answer FileStates::askBeforeWriting(ProjectFile* file)
{
    if (!isOvertaken(file) || Operations::savedLines(file) == Operations::workLines(file)) {
        return Write;
    }
    const QStringList choices{tr("Write over it"), tr("Read the file, and drop the changes here"),
                              tr("Compare...")};
    const QString name = QDir::toNativeSeparators(file->fileName());
    switch (ask(file, tr("Save"),
                tr("%1 was changed by another program or in another project after it was read or "
                   "saved here. Saving writes over those changes.")
                    .arg(name),
                choices)) {
    case First:
        return Write;
    case Second:
        return read(file) ? Read : GiveUp;
    default:
        return GiveUp;
    }
}

/// After "Compare" the question is shown again. If the file is destroyed meanwhile, that counts as
/// cancelled.
int FileStates::ask(ProjectFile* file, const QString& title, const QString& text,
                    const QStringList& choices)
{
    int answer = Compare;
    while (answer == Compare) {
        answer = Dialogs::instance()->choose(title, text, choices, Compare);
        if (!m_stamps.contains(file)) {
            return -1;
        }
        if (answer == Compare) {
            CompareDialog dialog(
                Zorv::Interface::instance()->mainWindow(), QFileInfo(file->fileName()).fileName(),
                Operations::savedLines(file).value_or(QString()), Operations::workLines(file));
            dialog.exec();
        }
    }
    return answer;
}

}  // namespace App
