#pragma once

#include "family/grammar/filekind.h"

#include <QString>
#include <QStringList>

namespace Operations {

/// The result: what was created, or why nothing was.
struct Created
{
    QString path;   ///< of the game folder, the main file or the file; empty if nothing was created
    QString error;  ///< for the user: what, where, what to do; empty on success
};

/// A game to create.
struct NewGame
{
    QString folder;                                 ///< its path; the parent folder must exist
    QString character = QStringLiteral("fighter");  ///< name of the first character
    QString stage = QStringLiteral("training-room");
    QString templateName;  ///< a template of `NewKind::Game`; empty for the shipped one
};

/// @name New things
///
/// They are copies of a template, and `check` finds no problem in them. A character has all
/// animations that an engine needs, with placeholder sprites, and can fight. Each is created
/// completely or not at all, even if the disk is full or the process is killed. Nothing that exists
/// is ever replaced, except an empty folder.
/// @{

/// Creates a game with a character and a stage.
Created createGame(const NewGame& game);

/// Creates a character or a stage in its own folder, inside "characters" or "stages" of the game
/// folder `game`. An empty `templateName` means the shipped template.
Created createProject(const QString& game, Family::FileKind kind, const QString& name,
                      const QString& templateName = {});

/// Creates a single file. Its suffix decides the kind: code, sprites, sounds or a palette (.act).
/// Its folder is created if needed. No project names the file yet.
Created createFile(const QString& path, const QString& templateName = {});
/// @}

/// The suffixes that `createFile()` accepts, such as ".code".
QStringList newFileSuffixes();

/// The folder for a new character or stage of a game.
QString newProjectFolder(const QString& game, Family::FileKind kind, const QString& name);

}  // namespace Operations
