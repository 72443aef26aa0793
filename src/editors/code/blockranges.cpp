#include "editors/code/blockranges_p.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codefolding_p.h"

#include <algorithm>

namespace Zorv {

namespace {

constexpr int DarkValue = 128;

/// The left edge of the first non-blank character of a line, independent of scrolling.
int visualIndent(const QTextBlock& block, const CodeEditorPrivate& editor)
{
    const QString text = block.text();
    const auto found = std::find_if(text.begin(), text.end(),
                                    [](QChar character) { return !character.isSpace(); });
    if (found == text.end()) {
        return 0;
    }
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + int(found - text.begin()));
    return editor.q->cursorRect(cursor).left() - int(editor.contentOffset().x());
}

/// The last block before the next one with a level below `level`.
QTextBlock endOfRange(const QTextBlock& block, int level, const CodeDocument& document)
{
    const QTextBlock lower = document.lowerBlockBelow(block, level);
    return lower.isValid() ? lower.previous() : document.lastBlock();
}

int mixed(int inner, int outer, int factor)
{
    return (inner * factor + outer * (256 - factor)) / 256;
}

QColor shifted(const QColor& color, int by)
{
    const auto channel = [by](int value) { return qBound(0, value + by, 255); };
    return QColor(channel(color.red()), channel(color.green()), channel(color.blue()));
}

}  // namespace

// Works outwards from the line: find the nearest line above with a lower level, and the nearest one
// below. The range starts with the upper one and ends before the lower one. Then continue outwards
// from the upper one, until no line above has a lower level.
HighlightBlocks BlockRanges::around(QTextBlock block, const CodeEditorPrivate& editor)
{
    HighlightBlocks ranges;
    if (!block.isValid() || !editor.document) {
        return ranges;
    }
    const CodeDocument& document = *editor.document;
    const QTextBlock next = block.next();
    if (next.isValid() && CodeFolding::indent(next) > CodeFolding::indent(block)) {
        block = next;
    }
    QTextBlock end = block;
    for (;;) {
        const int level = CodeFolding::indent(block);
        block = document.lowerBlockAtOrAbove(block, level);
        if (!block.isValid()) {
            block = document.firstBlock();
            if (CodeFolding::indent(block) == level) {
                return ranges;
            }
        }
        end = endOfRange(end, level, document);
        ranges.open.prepend(block.blockNumber());
        ranges.close.append(end.blockNumber());
        ranges.visualIndent.prepend(
            std::min(visualIndent(block, editor), visualIndent(end, editor)));
    }
}

int BlockRanges::depth(const HighlightBlocks& ranges, int blockNumber)
{
    const auto opened = std::count_if(ranges.open.begin(), ranges.open.end(),
                                      [blockNumber](int open) { return open <= blockNumber; });
    const auto closed = std::count_if(ranges.close.begin(), ranges.close.end(),
                                      [blockNumber](int close) { return close < blockNumber; });
    return int(opened - closed);
}

QVector<QColor> BlockRanges::colors(const QColor& base, int count)
{
    const bool isDark = base.value() <= DarkValue;
    const QColor outer = shifted(base, isDark ? 40 : -30);
    const QColor inner = shifted(base, isDark ? 20 : -15);
    QVector<QColor> colors;
    for (int i = 0; i <= count; ++i) {
        if (i == count) {
            colors.append(base);
        } else if (i == 0) {
            colors.append(outer);
        } else if (i == count - 1) {
            colors.append(inner);
        } else {
            const int factor = i * (256 / (count - 2));
            colors.append(QColor(mixed(inner.red(), outer.red(), factor),
                                 mixed(inner.green(), outer.green(), factor),
                                 mixed(inner.blue(), outer.blue(), factor)));
        }
    }
    return colors;
}

}  // namespace Zorv
