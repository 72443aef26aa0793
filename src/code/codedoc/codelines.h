#pragma once

#include "zorv_export.h"

class QString;

namespace Zorv {

class CodeDocument;

/// Functions to edit whole lines, counted from 0. They work like edits through the tree: inside a
/// change, nodes are updated at once. A last line without a line end counts as a line. Text added
/// behind it starts a new line and has no line end either.

/// Inserts a text in front of a line, or at the end if `line` is the number of lines. `text` has LF
/// between its lines and none at the end.
ZORV_EXPORT void insertLines(CodeDocument* document, int line, const QString& text);

/// Replaces the lines `first` to `last`, which must both exist.
ZORV_EXPORT void replaceLines(CodeDocument* document, int first, int last, const QString& text);

/// Removes the lines `first` to `last` and one line end: the one behind them, or at the end of the
/// text the one in front.
ZORV_EXPORT void removeLines(CodeDocument* document, int first, int last);

}  // namespace Zorv
