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

/// The open document of a file of the game (relative to it): of several the one
/// with unsaved changes. Null if there is none.
Family::FamilyDocument* openDocumentOf(const Family::FamilyParentProject& game,
                                       const QString& file);

/// Takes the shared files of the open projects along after the game has moved from
/// `oldRoot`, which ends in "/": those that are not at the new place yet are
/// copied, and open documents of them go on there, saved. Gives those of which that
/// failed, relative to the game.
QStringList moveSharedFiles(Family::FamilyParentProject* game, const QString& oldRoot);

}  // namespace Operations
