#pragma once

#include "editors/code/codeeditor.h"
#include "zorv_export.h"

namespace Zorv {

class Interface;

/// What the settings of a host say about an editor of code: "code_line_numbers",
/// "code_highlight_line", "code_highlight_blocks", "code_folding_markers",
/// "code_paren_matching", the colours "line", "block_range" and "paren_range", and the text
/// format "paren". A setting that the host does not know, or a colour that is invalid, is what
/// `SyntaxFormatting` has at first. The workspace takes it; so does whoever shows code elsewhere.
ZORV_EXPORT CodeEditor::SyntaxFormatting formattingOf(const Interface* host);

}  // namespace Zorv
