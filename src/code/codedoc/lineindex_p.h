#pragma once

#include "code/codedoc/codeblockdata_p.h"

namespace Zorv {

/// All lines of a document in text order, by what they are and have.
///
/// It answers "the nearest line above with a node", "the next line with an
/// error" and the like in logarithmic time. A line enters when it is parsed
/// first, and leaves when its block dies.
class LineIndex
{
public:
    /// Enters a new line; the line above it must be in the index.
    void insert(CodeBlockData* above, CodeBlockData* line);
    void remove(CodeBlockData* line);

    /// Changes what a line is or has.
    static void setTraits(CodeBlockData* line, quint16 traits);

    /// Changes the folding level of a line with a class.
    static void setFoldingIndent(CodeBlockData* line, qint16 indent);

    /// The nearest line in front of (behind) `line` with one of `traits`.
    static CodeBlockData* backward(const CodeBlockData* line, quint16 traits);
    static CodeBlockData* forward(const CodeBlockData* line, quint16 traits);

    /// The last line with one of `traits` in the index of `line`.
    static CodeBlockData* last(const CodeBlockData* line, quint16 traits);

    /// The nearest line with a class and a folding level below `level`.
    static CodeBlockData* backwardBelow(const CodeBlockData* line, int level);
    static CodeBlockData* forwardBelow(const CodeBlockData* line, int level);

    /// The neighbours; null at the top, and at the bottom.
    static CodeBlockData* above(const CodeBlockData* line);
    static CodeBlockData* below(const CodeBlockData* line);

private:
    static bool isAnywhere(const CodeBlockData* line, quint16 traits);

    CodeBlockData* m_root = nullptr;
};

}  // namespace Zorv
