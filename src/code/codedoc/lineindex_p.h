#pragma once

#include "code/codedoc/codeblockdata_p.h"

namespace Zorv {

/// An index of all lines of a document, in text order, by their traits.
///
/// It answers questions like "the nearest line above with a node" or "the next
/// line with an error" in logarithmic time. A line is added when it is first
/// parsed, and removed when its block is deleted.
class LineIndex
{
public:
    /// Adds a new line. The line above it must be in the index.
    void insert(CodeBlockData* above, CodeBlockData* line);
    void remove(CodeBlockData* line);

    /// Changes the traits of a line.
    static void setTraits(CodeBlockData* line, quint16 traits);

    /// Changes the folding level of a line with a class.
    static void setFoldingIndent(CodeBlockData* line, qint16 indent);

    /// The nearest line before (behind) `line` that has one of `traits`.
    static CodeBlockData* backward(const CodeBlockData* line, quint16 traits);
    static CodeBlockData* forward(const CodeBlockData* line, quint16 traits);

    /// The last line in the index that has one of `traits`.
    static CodeBlockData* last(const CodeBlockData* line, quint16 traits);

    /// The nearest line with a class and a folding level below `level`.
    static CodeBlockData* backwardBelow(const CodeBlockData* line, int level);
    static CodeBlockData* forwardBelow(const CodeBlockData* line, int level);

    /// The neighbouring lines; null at the top and bottom.
    static CodeBlockData* above(const CodeBlockData* line);
    static CodeBlockData* below(const CodeBlockData* line);

private:
    static bool isAnywhere(const CodeBlockData* line, quint16 traits);

    CodeBlockData* m_root = nullptr;
};

}  // namespace Zorv
