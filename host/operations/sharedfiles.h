#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Family {
class FamilyDocument;
class FamilyParentProject;
class FamilyProject;
}  // namespace Family

namespace Operations {

/// The open projects of a game.
QList<Family::FamilyProject*> openProjectsOf(const Family::FamilyParentProject& game);

/// The open document of a file of the game (path relative to the game). If there are several, the
/// one with unsaved changes. Null if there is none.
Family::FamilyDocument* openDocumentOf(const Family::FamilyParentProject& game,
                                       const QString& file);

/// Copies the shared files of the open projects to the new place after the game has moved from
/// `oldRoot`, which ends in "/". Files that exist there already are not copied. Open documents of
/// shared files are saved to the new place and continue there. Returns the files for which this
/// failed, relative to the game.
QStringList moveSharedFiles(Family::FamilyParentProject* game, const QString& oldRoot);

}  // namespace Operations
