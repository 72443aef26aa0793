#pragma once

#include "rules/movefacts.h"

namespace Operations {

/// A character as the rules read it, with what each of its moves is worth.
struct CharacterMoves
{
    Rules::FighterData data;
    QVector<Rules::MoveFacts> facts;  ///< of `data.moves`
};

/// The frame data of one character, if `path` is its main file, or of all characters of a game.
/// What could not be read is told in `errors`, a line each for the person.
QVector<CharacterMoves> moveFrames(const QString& path, QStringList* errors);

}  // namespace Operations
