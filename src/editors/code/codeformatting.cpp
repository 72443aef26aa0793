#include "editors/code/codeformatting.h"

#include "core/interface.h"

namespace Zorv {

namespace {

void takeSwitch(const Interface* host, const char* key, bool* field)
{
    const QVariant value = host->option(QLatin1String(key));
    if (value.isValid()) {
        *field = value.toBool();
    }
}

void takeColour(const Interface* host, const char* key, QColor* field)
{
    const auto value = host->option(QLatin1String(key)).value<QColor>();
    if (value.isValid()) {
        *field = value;
    }
}

}  // namespace

CodeEditor::SyntaxFormatting formattingOf(const Interface* host)
{
    CodeEditor::SyntaxFormatting result;
    takeSwitch(host, "code_line_numbers", &result.lineNumbers);
    takeSwitch(host, "code_highlight_line", &result.highlightCurrentLine);
    takeSwitch(host, "code_highlight_blocks", &result.highlightBlocks);
    takeSwitch(host, "code_folding_markers", &result.foldingMarkers);
    takeSwitch(host, "code_paren_matching", &result.parenMatching);
    takeColour(host, "line", &result.currentLineColor);
    takeColour(host, "block_range", &result.blockRangeColor);
    QColor range;
    takeColour(host, "paren_range", &range);
    if (range.isValid()) {
        result.parenRangeFormat.setBackground(range);
    }
    result.parenFormat = host->option(QStringLiteral("paren")).value<QTextFormat>().toCharFormat();
    return result;
}

}  // namespace Zorv
