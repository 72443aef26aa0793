#pragma once

#include "family/grammar/filekind.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace Family {
class FamilyDocument;
class FamilyParentProject;
class FamilyProject;
}  // namespace Family

namespace Zorv {
class ProjectFile;
}

namespace App {

/// What the window has open: one game folder and projects in it.
///
/// Owns both. It has no user interface, and does not ask about unsaved work: the caller does before
/// it closes something. Views must release what closes when its `...AboutToClose` signal is sent.
class GameSession : public QObject
{
    Q_OBJECT

public:
    explicit GameSession(QObject* parent = nullptr);
    ~GameSession() override;

    /// Opens a game folder instead of the current one, which closes first. False, with `error`, if
    /// the folder does not exist, cannot be read or has no project; nothing changes then.
    bool openFolder(const QString& folder, QString* error);

    void closeFolder();

    /// The tree of the game; null if none is open.
    Family::FamilyParentProject* game() const { return m_game.get(); }

    /// The game folder with a trailing "/"; empty if none is open.
    QString folder() const;

    /// A file's path as messages show it: relative to the game folder if the file is inside it.
    QString shownPath(const QString& fileName) const;

    const QList<Family::FamilyProject*>& projects() const { return m_projects; }

    /// The project of a main file, opened if necessary. Null, with `error`, on failure.
    Family::FamilyProject* openProject(const QString& mainFile, QString* error);

    /// A new, unsaved project; null if no game is open.
    Family::FamilyProject* newProject(Family::FileKind kind);

    /// The open project with this main file, or null.
    Family::FamilyProject* projectOf(const QString& mainFile) const;

    void closeProject(Family::FamilyProject* project);

    /// The main file of the closed project that a file belongs to, judged by the files that
    /// projects name. Projects in the folders around the file come first. Empty if there is none.
    QString closedProjectOf(const QString& fileName) const;

    /// The document of a file in the open projects; `preferred` is searched first. With `load`,
    /// files that a project names by now are loaded first. Null if there is none.
    Family::FamilyDocument* document(const QString& fileName,
                                     const Family::FamilyProject* preferred = nullptr,
                                     bool load = false) const;

    /// The unsaved documents of one project, or with null of all, as in
    /// `Zorv::FileInput::isUnsaved()`.
    QList<Family::FamilyDocument*>
    modifiedDocuments(const Family::FamilyProject* project = nullptr) const;

    /// The same, followed by sprites and sounds.
    QList<Zorv::ProjectFile*> modifiedFiles(const Family::FamilyProject* project = nullptr) const;

    /// The same, including files that no longer exist on disk: closing them loses their contents.
    QList<Zorv::ProjectFile*> unkeptFiles(const Family::FamilyProject* project = nullptr) const;

signals:
    void folderOpened();
    void folderAboutToClose();
    void projectOpened(Family::FamilyProject* project);
    void projectAboutToClose(Family::FamilyProject* project);

private:
    std::unique_ptr<Family::FamilyParentProject> m_game;
    QList<Family::FamilyProject*> m_projects;
};

/// True if the file of a document or collection no longer exists on disk.
bool isGone(const Zorv::ProjectFile* file);

/// The project in which a document is registered, or null.
Family::FamilyProject* projectOf(const Family::FamilyDocument* document);

}  // namespace App
