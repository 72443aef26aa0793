#pragma once

#include "rules/movefacts.h"

#include <optional>

namespace Family {
class AnimationNode;
class ProjectNames;
}  // namespace Family

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

/// What the rules make of an animation of an open text, saved or not, as that of the first move
/// which shows it: what becomes of a meeting is left out. Nothing if no move does, or if it takes
/// longer than anybody follows. Reads the heads of all moves, and plays one.
std::optional<Rules::MoveFacts> moveFactsOf(const Family::AnimationNode* animation,
                                            const Family::ProjectNames& names);

}  // namespace Operations
