#pragma once

#include "operations/diff/animationdiff.h"

#include <QImage>
#include <QStringList>

namespace Family {
class AnimationNode;
class FrameComposer;
}  // namespace Family

namespace Operations {

/// One of the two animations, and the composer that draws it.
struct DiffSide
{
    const Family::AnimationNode* animation;
    Family::FrameComposer* composer;
};

/// Draws the frames that differ in one picture, one row each: the old frame on the left, the new
/// one on the right. The axis is at the same place in all cells, the background is transparent, and
/// lines separate the cells. Missing or broken sprites are reported in `notes` and not drawn. Null,
/// with `error`, if nothing at all could be drawn, or if the picture would be too large.
QImage diffPicture(const QVector<FrameDiff>& diffs, const DiffSide& before, const DiffSide& after,
                   QStringList* notes, QString* error);

}  // namespace Operations
