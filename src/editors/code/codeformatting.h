#pragma once

#include "editors/code/codeeditor.h"
#include "zorv_export.h"

namespace Zorv {

class Interface;

/// Reads the look of a code editor from the host's settings: "code_line_numbers",
/// "code_highlight_line", "code_highlight_blocks", "code_folding_markers", "code_paren_matching",
/// the colours "line", "block_range" and "paren_range", and the text format "paren". Settings that
/// the host does not know, and invalid colours, keep the default of `SyntaxFormatting`. Used by the
/// workspace and by anything else that shows code.
ZORV_EXPORT CodeEditor::SyntaxFormatting formattingOf(const Interface* host);

}  // namespace Zorv
