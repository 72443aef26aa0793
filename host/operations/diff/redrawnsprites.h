#pragma once

#include "operations/diff/animationdiff.h"

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// Finds the frames that show the same sprite in both animations, but another picture by that
/// number: other pixels, colours or another axis. They are marked, and count as changed. A sprite
/// that is missing on either side is no reason. Each sprite is unpacked once.
void markRedrawn(const QVector<FrameRecord>& oldFrames, const Family::SpriteCollection& oldSprites,
                 const QVector<FrameRecord>& newFrames, const Family::SpriteCollection& newSprites,
                 QVector<FrameDiff>* diffs);

}  // namespace Operations
