#pragma once

#include "family/grammar/linereader.h"

namespace Zorv {
class CodeDocument;
}

namespace Family {

/// What can be inserted at a position in a line, judging by the text before it.
struct LineContext
{
    enum Kind : unsigned char {
        Nothing,
        GroupName,
        SubGroupName,
        LineStart,  ///< a key, or a keyword that starts a line
        Value,      ///< after '=' of `key`
        Option,     ///< of a frame that already has `options`
        Flip
    };

    Kind kind = Nothing;
    LineHead head;
    const KeyInfo* key = nullptr;
    unsigned options = 0;   ///< bit `1 << FrameOptionIndex` for each
    bool isQuoted = false;  ///< the position is inside a quoted text

    /// The columns of the word at the position, which another word would replace; `end` is after
    /// its last character.
    int start = 0;
    int end = 0;
};

/// The context of a column in a line that follows `head`.
LineContext lineContext(const QString& line, int column, const LineHead& head);

/// The head that a line of a document belongs to.
LineHead headOfLine(const Zorv::CodeDocument* document, int line);

}  // namespace Family
