#pragma once

#include <zorv/cache/spritenumber.h>

#include <QString>

class QTextCursor;

namespace Family {

class AnimationNode;

/// Maps a sprite number to its replacement; others stay unchanged.
using SpriteMap = QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>;

/// The head line of an animation with a new identifier; unchanged if that is empty.
QString headLineFor(const AnimationNode* animation, const QString& identifier);

/// The lines that belong to an animation, without the last line end: from its first line to its
/// last line of code. Comments and empty lines after that do not belong to it.
QTextCursor ownLinesOf(const AnimationNode* animation);

/// These lines, separated by line feeds, with a new identifier and other sprites.
QString ownCodeFor(const AnimationNode* animation, const QString& identifier,
                   const SpriteMap& sprites);

}  // namespace Family
