#pragma once

#include "animation/edits/boxedits.h"

#include <QString>

class QMimeData;

namespace Zorv {

/// Contact boxes on their way through the clipboard, from one frame to another.

/// These boxes of a frame: as numbers for `pastedBoxes()`, and as the lines of the text that they
/// stand in, to be pasted into a text. The caller owns it.
ZORV_EXPORT QMimeData* copiedBoxes(const FrameCode* frame, const QVector<BoxPlace>& boxes);

/// The boxes of a clipboard. Empty for null, for other data, and for data of that type that is
/// broken.
ZORV_EXPORT BoxRects pastedBoxes(const QMimeData* data);

}  // namespace Zorv
