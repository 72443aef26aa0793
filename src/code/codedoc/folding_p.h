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

    /// Brings the levels of the lines `first` to `last` up to date, and those
    /// below that depend on them.
    static void update(CodeBlockData* first, CodeBlockData* last);

private:
    static int indentBetween(const CodeBlockData* above, const CodeBlockData* below);
    static bool updateLine(CodeBlockData* line);
};

}  // namespace Zorv
