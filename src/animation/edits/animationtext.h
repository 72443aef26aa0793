#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class Animations;

/// The code of an animation for editing apart from the text: without leading and trailing blanks,
/// lines separated by line feeds. Empty if there is no such animation.
ZORV_EXPORT QString animationText(const Animations* animations, int animation);

/// Replaces the code of an animation as one undo step. Trims the new text; blanks around the
/// animation stay. False, with the text unchanged, unless it is the code of exactly one animation:
/// its head, nothing foreign before it, and no second head. Equal code makes no undo step.
ZORV_EXPORT bool replaceAnimation(Animations* animations, int animation, const QString& text);

}  // namespace Zorv
