#pragma once

#include "family/grammar/linereader.h"

namespace Zorv {
class CodeDocument;
}

namespace Family {

/// What can be written at a place of a line, from the text in front of it.
struct LineContext
{
    enum Kind : unsigned char {
        Nothing,
        GroupName,
        SubGroupName,
        LineStart,  ///< a key, or a word that starts a line
        Value,      ///< behind '=', of `key`
        Option,     ///< of a frame, of which `options` are there
        Flip
    };

    Kind kind = Nothing;
    LineHead head;
    const KeyInfo* key = nullptr;
    unsigned options = 0;   ///< bit `1 << FrameOptionIndex` for each
    bool isQuoted = false;  ///< the place is within a text in quotes

    /// The columns of the word at the place, from its first to behind its last
    /// character: what another word would replace.
    int start = 0;
    int end = 0;
};

/// The context of a column of a line under its head.
LineContext lineContext(const QString& line, int column, const LineHead& head);

/// What a line of a document stands under.
LineHead headOfLine(const Zorv::CodeDocument* document, int line);

}  // namespace Family
