#pragma once

#include "animation/edits/boxedits.h"

#include <QString>

class QMimeData;

namespace Zorv {

/// Copies contact boxes between frames through the clipboard.

/// Clipboard data for these boxes: numbers for `pastedBoxes()`, and the lines of their text for
/// pasting into a text. The caller owns it.
ZORV_EXPORT QMimeData* copiedBoxes(const FrameCode* frame, const QVector<BoxPlace>& boxes);

/// The boxes in clipboard data. Empty for null, for data of another type, and for malformed data.
ZORV_EXPORT BoxRects pastedBoxes(const QMimeData* data);

}  // namespace Zorv
