#pragma once

#include "family/grammar/filekind.h"

#include <QString>
#include <QStringList>

namespace Operations {

/// What was made, or why nothing was.
struct Created
{
    QString path;   ///< of the game folder, the main file or the file; empty if nothing was made
    QString error;  ///< what, where, what to do, for the person; empty if all went well
};

/// A game that is to be made.
struct NewGame
{
    QString folder;  ///< its path; the folder around it has to be there
    QString character = QStringLiteral("fighter");  ///< the name of the first one
    QString stage = QStringLiteral("training-room");
    QString templateName;  ///< of `NewKind::Game`; empty for ours
};

/// @name New things
///
/// They are made of a template, with nothing that `check` complains of; a character has all
/// animations that an engine needs, with placeholders for its sprites, and can fight. Each is there
/// whole or not at all, also if the disk is full or the process killed in the middle. What is there
/// already is never replaced, but for an empty folder.
/// @{

/// A game with a character and a stage.
Created createGame(const NewGame& game);

/// A character or a stage, in a folder of its own below "characters" or "stages" of the game folder
/// `game`. An empty `templateName` stands for ours.
Created createProject(const QString& game, Family::FileKind kind, const QString& name,
                      const QString& templateName = {});

/// A single file of the kind that its suffix tells: code, sprites, sounds or a palette (.act). The
/// folder that it needs is made. No project names it yet.
Created createFile(const QString& path, const QString& templateName = {});
/// @}

/// The suffixes of `createFile()`, as in ".code".
QStringList newFileSuffixes();

/// The folder that a character or a stage of a name gets in a game.
QString newProjectFolder(const QString& game, Family::FileKind kind, const QString& name);

}  // namespace Operations
