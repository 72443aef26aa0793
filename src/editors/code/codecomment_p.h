#pragma once

#include <QChar>

class QTextCursor;

namespace Zorv {

/// Comments lines out and back in.
class CodeComment
{
public:
    /// Inserts `mark` at the start of every line that the selection touches, even of
    /// lines that already begin with it. If the first line begins with the mark,
    /// removes one mark from each line that has one instead. Without a selection, works
    /// on the cursor's line. One undo step. The cursor ends up at the start of the last
    /// line.
    static void toggle(QTextCursor* cursor, QChar mark);
};

}  // namespace Zorv
