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

/// What the window has open: one game folder, and projects of it.
///
/// Owns both. It shows nothing and asks nothing about unsaved work: whoever
/// closes something has asked before. Views let go of what closes when its
/// `...AboutToClose` signal comes.
class GameSession : public QObject
{
    Q_OBJECT

public:
    explicit GameSession(QObject* parent = nullptr);
    ~GameSession() override;

    /// Opens a game folder in place of the present one, which closes first. False,
    /// with `error`, and with all as it was, for a folder that is missing, cannot
    /// be read, or has no project.
    bool openFolder(const QString& folder, QString* error);

    void closeFolder();

    /// The tree of the game; null while none is open.
    Family::FamilyParentProject* game() const { return m_game.get(); }

    /// The game folder with "/" at its end; empty while none is open.
    QString folder() const;

    /// The path of a file as messages show it: relative to the game folder if
    /// it lies in it.
    QString shownPath(const QString& fileName) const;

    const QList<Family::FamilyProject*>& projects() const { return m_projects; }

    /// The project of a main file, opened if it is not open yet. Null, with
    /// `error`, if that fails.
    Family::FamilyProject* openProject(const QString& mainFile, QString* error);

    /// A new project that is not saved yet; null while no game is open.
    Family::FamilyProject* newProject(Family::FileKind kind);

    /// The open project of a main file, or null.
    Family::FamilyProject* projectOf(const QString& mainFile) const;

    void closeProject(Family::FamilyProject* project);

    /// The main file of the closed project that a file belongs to, from what the
    /// files of projects name; those in the folders around the file come first.
    /// Empty if there is none.
    QString closedProjectOf(const QString& fileName) const;

    /// The document of a file in the open projects: in `preferred`, if it has it.
    /// With `load`, files that a project has come to name are loaded first. Null
    /// if there is none.
    Family::FamilyDocument* document(const QString& fileName,
                                     const Family::FamilyProject* preferred = nullptr,
                                     bool load = false) const;

    /// The documents of one project, or with null of all, that are unsaved, as
    /// `Zorv::FileInput::isUnsaved()` tells.
    QList<Family::FamilyDocument*>
    modifiedDocuments(const Family::FamilyProject* project = nullptr) const;

    /// The same with sprites and sounds, behind the documents.
    QList<Zorv::ProjectFile*> modifiedFiles(const Family::FamilyProject* project = nullptr) const;

    /// The same with those that are no longer on the disk: closing them loses what is in them.
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

/// True if the file of a document or collection is no longer on the disk.
bool isGone(const Zorv::ProjectFile* file);

/// The project that a document is registered in, or null.
Family::FamilyProject* projectOf(const Family::FamilyDocument* document);

}  // namespace App
