#pragma once

class QTextCursor;

namespace Zorv {

/// Finds the messages of a `CodeDocument` from its text, near a cursor.
///
/// Logarithmic in the length of the text for each line that is looked at.
class MessageJump
{
public:
    enum Kind {
        Errors = 0,
        Deprecations = 1  ///< with the warnings, which the list of messages makes of them too
    };

    /// Puts the cursor at the start of the next message behind it. False if there is
    /// none; it stays then.
    static bool next(Kind kind, QTextCursor* cursor);

    /// Puts the cursor at the first message of its line that ends before it, else at the
    /// first one of the nearest line above that has any.
    static bool previous(Kind kind, QTextCursor* cursor);
};

}  // namespace Zorv
