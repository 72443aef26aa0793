#pragma once

class QTextCursor;

namespace Zorv {

class CodeDocument;

/// Finds the partner of a bracket. Only opening and closing are distinguished: any
/// closing character matches any opening one.
namespace ParenthesisMatch {

enum Result { None = 0, Match = 1, Mismatch = 2 };

/// For a closing bracket before the cursor. Selects the match, from after the closing
/// bracket to the opening one. Any previous selection is cleared in any case.
Result backward(QTextCursor* cursor, const CodeDocument& document);

/// The mirror image, for an opening bracket after the cursor.
Result forward(QTextCursor* cursor, const CodeDocument& document);

}  // namespace ParenthesisMatch

}  // namespace Zorv
