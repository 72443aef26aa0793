#pragma once

class QTextCursor;

namespace Zorv {

/// Moves whole lines of a text.
class CodeLines
{
public:
    enum Direction { Up, Down };

    /// Swaps the lines that the selection touches, or that of the cursor, with the line above or
    /// below. A folded head is one line with all that it hides, and stays folded. The selection
    /// goes along. One step of undo. An empty last line is the end of the text and no line. False
    /// if there is nothing to swap with.
    static bool move(QTextCursor* cursor, Direction direction);
};

}  // namespace Zorv
