#pragma once

class QTextCursor;

namespace Zorv {

/// Finds the messages of a `CodeDocument` near a cursor.
///
/// Takes logarithmic time in the length of the text for each line visited.
class MessageJump
{
public:
    enum Kind {
        Errors = 0,
        Deprecations = 1  ///< and warnings: the message list treats both alike
    };

    /// Moves the cursor to the start of the next message after it. Returns false and
    /// leaves the cursor if there is none.
    static bool next(Kind kind, QTextCursor* cursor);

    /// Moves the cursor to the first message in its line that ends before it, else to
    /// the first message of the nearest line above that has one.
    static bool previous(Kind kind, QTextCursor* cursor);
};

}  // namespace Zorv
