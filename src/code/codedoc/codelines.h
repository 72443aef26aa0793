#pragma once

#include "zorv_export.h"

class QString;

namespace Zorv {

class CodeDocument;

/// Edits of whole lines, counted from 0, as those by the tree: inside of a change the nodes follow
/// at once. A last line without a line end is a line like any other, and text that comes behind it
/// leaves it one.

/// Puts a text in front of a line; for the number of lines, at the end. `text` has line feeds
/// between its lines and none behind the last.
ZORV_EXPORT void insertLines(CodeDocument* document, int line, const QString& text);

/// Puts a text in the place of the lines `first` to `last`, both of which have to be there.
ZORV_EXPORT void replaceLines(CodeDocument* document, int first, int last, const QString& text);

/// Takes the lines `first` to `last` out with a line end of theirs: the one behind them, at the
/// end of the text the one in front.
ZORV_EXPORT void removeLines(CodeDocument* document, int first, int last);

}  // namespace Zorv
