#pragma once

#include <zorv/cache/spritenumber.h>

#include <QString>

class QTextCursor;

namespace Family {

class AnimationNode;

/// From a sprite to the one that takes its place; others stay.
using SpriteMap = QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>;

/// The head line of an animation with another identifier; as it is for an empty one.
QString headLineFor(const AnimationNode* animation, const QString& identifier);

/// The lines that are an animation's own, without the last line end: from its first one to its
/// last code. Comments and empty lines behind that stay where they are.
QTextCursor ownLinesOf(const AnimationNode* animation);

/// Those lines, with a line feed between two, under another identifier and with other sprites.
QString ownCodeFor(const AnimationNode* animation, const QString& identifier,
                   const SpriteMap& sprites);

}  // namespace Family
