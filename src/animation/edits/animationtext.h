#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class Animations;

/// The code of an animation as a person edits it apart from the text: without blanks at its ends,
/// with a line feed between two lines. Empty if there is no such animation.
ZORV_EXPORT QString animationText(const Animations* animations, int animation);

/// Puts another code in its place, as one step of undo; blanks at the ends are left out, and those
/// around the animation stay. False, with the text as it was, unless it is the code of exactly one
/// animation: its head, with nothing that belongs elsewhere in front, and no other head. Code that
/// is there already makes no step.
ZORV_EXPORT bool replaceAnimation(Animations* animations, int animation, const QString& text);

}  // namespace Zorv
