#pragma once

#include <zorv/animation/edits/alignment.h>
#include <zorv/animation/edits/frameplace.h>

class QString;

namespace Family {
class FamilyAnimations;
}  // namespace Family

namespace Operations {

/// Parses an alignment: "axis", "boxes", "top-left", "bottom-right" or "scale", and two numbers
/// such as "4,-2". For "scale" they are percentages from 0. False, with `error`, for anything else.
bool readAlignment(const QString& mode, const QString& numbers, Zorv::Alignment* alignment,
                   QString* error);

/// Aligns animations, as one undo step. False, with `error`, if the grammar rejects one of the new
/// numbers; the accepted ones are already written then.
bool alignAnimations(Family::FamilyAnimations* list, const QVector<int>& indexes,
                     const Zorv::Alignment& alignment, QString* error);

/// The frames that `reference` names: "200/3" is frame 3 (from 0) of animation 200, "200" is the
/// whole animation. The animation part works as in `findAnimation()`. Empty, with `error`, if
/// nothing matches.
QVector<Zorv::FramePlace> findFrames(const Family::FamilyAnimations* list, const QString& reference,
                                     QString* error);

}  // namespace Operations
