#pragma once

#include "operations/diff/animationdiff.h"

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// Marks the frames that show the same sprite number in both animations but a different picture:
/// other pixels, colours or another axis. Marked frames count as changed. A sprite that is missing
/// on either side does not count as different. Each sprite is unpacked once.
void markRedrawn(const QVector<FrameRecord>& oldFrames, const Family::SpriteCollection& oldSprites,
                 const QVector<FrameRecord>& newFrames, const Family::SpriteCollection& newSprites,
                 QVector<FrameDiff>* diffs);

}  // namespace Operations
