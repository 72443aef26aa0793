#pragma once

#include "rules/movefacts.h"

#include <optional>

namespace Family {
class AnimationNode;
class ProjectNames;
}  // namespace Family

namespace Operations {

/// A character as the rules read it, with the frame data of each move.
struct CharacterMoves
{
    Rules::FighterData data;
    QVector<Rules::MoveFacts> facts;  ///< one for each of `data.moves`
};

/// The frame data of one character if `path` is its main file, or of all characters of a game.
/// `errors` gets a line for the user for everything that could not be read.
QVector<CharacterMoves> moveFrames(const QString& path, QStringList* errors);

/// The frame data of an animation of an open text, saved or not. Takes the first move that shows
/// the animation, and leaves out the results of hit and block. Nothing if no move shows it, or if
/// the move is too long to follow. Reads the heads of all moves and plays one move.
std::optional<Rules::MoveFacts> moveFactsOf(const Family::AnimationNode* animation,
                                            const Family::ProjectNames& names);

}  // namespace Operations
