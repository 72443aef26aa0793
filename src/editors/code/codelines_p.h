#pragma once

class QTextCursor;

namespace Zorv {

/// Moves whole lines of a text.
class CodeLines
{
public:
    enum Direction { Up, Down };

    /// Swaps the lines that the selection touches, or the cursor's line, with the line above or
    /// below. A folded head and its hidden lines count as one line and stay folded. The selection
    /// moves along. One undo step. An empty last line is the end of the text and does not count as
    /// a line. False if there is nothing to swap with.
    static bool move(QTextCursor* cursor, Direction direction);
};

}  // namespace Zorv
