#pragma once

#include "code/codedoc/codeblockdata_p.h"

namespace Zorv {

/// Folding levels of lines, from the classes that the host gives them.
///
/// Heads and bodies keep their level. That of a line without a class depends on
/// the classified lines around it, so it is worked out when it is asked for: a
/// run of a million comments costs nothing when the line below it changes.
class Folding
{
public:
    /// Takes what `CodeDocument::blockFolding()` said of a line.
    static quint16 traitsOfClass(int folding);

    /// The level of a line in an index.
    static int indent(const CodeBlockData* line);

    /// Brings the level of a classified line up to date, when those above it
    /// are. True if something has changed that lines below depend on.
    static bool updateLine(CodeBlockData* line);

    /// Brings the levels below a line up to date, as far as they depend on it. Gives the
    /// last line with a class that has changed, `line` itself for none.
    static const CodeBlockData* updateBelow(const CodeBlockData* line);

    /// The nearest line with a level below `level`: at or above a line of an index, or
    /// strictly below it. Null if there is none.
    static const CodeBlockData* lowerAtOrAbove(const CodeBlockData* line, int level);
    static const CodeBlockData* lowerBelow(const CodeBlockData* line, int level);

private:
    static int indentBetween(const CodeBlockData* above, const CodeBlockData* below);
    static quint8 headAtOrAbove(const CodeBlockData* line);
};

}  // namespace Zorv
