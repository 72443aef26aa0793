#pragma once

class QTextCursor;

namespace Zorv {

class CodeDocument;

/// Looks for the partner of a bracket. Only opening and closing count: any character
/// that closes is a partner of any that opens.
namespace ParenthesisMatch {

enum Result { None = 0, Match = 1, Mismatch = 2 };

/// For a closing bracket in front of the cursor; a match is selected, from behind the
/// closing bracket to the opening one. What was selected before is not, in any case.
Result backward(QTextCursor* cursor, const CodeDocument& document);

/// The mirror image, for an opening bracket behind the cursor.
Result forward(QTextCursor* cursor, const CodeDocument& document);

}  // namespace ParenthesisMatch

}  // namespace Zorv
