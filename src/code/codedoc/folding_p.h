#pragma once

#include "code/codedoc/codeblockdata_p.h"

namespace Zorv {

/// Folding levels of lines, derived from the folding classes that the host assigns.
///
/// Heads and bodies store their level. The level of a line without a class depends on the nearest
/// lines with a class, and is computed on demand. So a million comment lines cost nothing when the
/// line below them changes.
class Folding
{
public:
    /// The traits for a result of `CodeDocument::blockFolding()`.
    static quint16 traitsOfClass(int folding);

    /// The level of a line. The line must be in an index.
    static int indent(const CodeBlockData* line);

    /// Updates the level of a line with a class; the lines above must be up to date. Returns true
    /// if something has changed that lines below depend on.
    static bool updateLine(CodeBlockData* line);

    /// Updates the levels below a line, as far as they depend on it. Returns the last changed line
    /// with a class, or `line` if none has changed.
    static const CodeBlockData* updateBelow(const CodeBlockData* line);

    /// The nearest line with a level below `level`: at or above a line, or strictly below it. The
    /// line must be in an index. Null if there is none.
    static const CodeBlockData* lowerAtOrAbove(const CodeBlockData* line, int level);
    static const CodeBlockData* lowerBelow(const CodeBlockData* line, int level);

private:
    static int indentBetween(const CodeBlockData* above, const CodeBlockData* below);
    static quint8 headAtOrAbove(const CodeBlockData* line);
};

}  // namespace Zorv
