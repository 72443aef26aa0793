#pragma once

#include <QChar>

class QTextCursor;

namespace Zorv {

/// Makes comments of lines, and lines of comments.
class CodeComment
{
public:
    /// Puts `mark` in front of every line that the selection touches, also of those that
    /// begin with one; if the first of them begins with one, takes one off each that
    /// does. Without a selection, the line of the cursor is meant. One step of undo. The
    /// cursor goes to the start of the last of the lines.
    static void toggle(QTextCursor* cursor, QChar mark);
};

}  // namespace Zorv
