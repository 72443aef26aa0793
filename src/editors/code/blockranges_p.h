#pragma once

#include "editors/code/highlightblocks_p.h"

#include <QColor>
#include <QVector>

class QTextBlock;

namespace Zorv {

class CodeEditorPrivate;

/// The ranges of lines around a line: each goes as far as no line has a folding level
/// below that of the range.
namespace BlockRanges {

/// The ranges around a block of an editor's document; none for an invalid one. A line that
/// opens a range is counted as inside it. Logarithmic for each range.
HighlightBlocks around(QTextBlock block, const CodeEditorPrivate& editor);

/// How many of the ranges a block stands in.
int depth(const HighlightBlocks& ranges, int blockNumber);

/// What the ranges are filled with, from the outside (0, the text outside of any) to
/// the innermost (`count`, which has the base colour).
QVector<QColor> colors(const QColor& base, int count);

}  // namespace BlockRanges

}  // namespace Zorv
