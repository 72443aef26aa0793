#pragma once

#include "operations/diff/animationdiff.h"

#include <QImage>
#include <QStringList>

namespace Family {
class AnimationNode;
class FrameComposer;
}  // namespace Family

namespace Operations {

/// One of two animations, and what draws it.
struct DiffSide
{
    const Family::AnimationNode* animation;
    Family::FrameComposer* composer;
};

/// The frames that differ on one picture, a row each: the old one at the left, the new one at the
/// right, all with the axis at the same place of their cells, over transparent ground and with
/// lines between. Sprites that are missing or broken are told in `notes`, and left out. Null, with
/// `error`, if nothing is drawn of any, or the picture would be too large.
QImage diffPicture(const QVector<FrameDiff>& diffs, const DiffSide& before, const DiffSide& after,
                   QStringList* notes, QString* error);

}  // namespace Operations
