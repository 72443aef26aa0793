#pragma once

#include <zorv/animation/edits/alignment.h>
#include <zorv/animation/edits/frameplace.h>

class QString;

namespace Family {
class FamilyAnimations;
}  // namespace Family

namespace Operations {

/// An alignment from words: "axis", "boxes", "top-left", "bottom-right" or "scale", and two
/// numbers such as "4,-2", percentages from 0 for "scale". False, with `error`, for any others.
bool readAlignment(const QString& mode, const QString& numbers, Zorv::Alignment* alignment,
                   QString* error);

/// Aligns animations, as one step of undo. False, with `error`, if the grammar does not take one of
/// the new numbers; what it takes has been written then.
bool alignAnimations(Family::FamilyAnimations* list, const QVector<int>& indexes,
                     const Zorv::Alignment& alignment, QString* error);

/// The frames that `reference` names: "200/3", the frame 3 of the animation 200, counted from 0, or
/// "200" for all of that animation, which is told as `findAnimation()` takes it. Empty, with
/// `error`, if there are none.
QVector<Zorv::FramePlace> findFrames(const Family::FamilyAnimations* list, const QString& reference,
                                     QString* error);

}  // namespace Operations
