#pragma once

#include "editors/code/highlightblocks_p.h"

#include <QColor>
#include <QVector>

class QTextBlock;

namespace Zorv {

class CodeEditorPrivate;

/// Computes the nested block ranges around a line. A range extends in both directions until a line
/// has a lower folding level.
namespace BlockRanges {

/// The ranges around a block of the editor's document; none for an invalid block. A line that opens
/// a range counts as inside it. Takes logarithmic time per range.
HighlightBlocks around(QTextBlock block, const CodeEditorPrivate& editor);

/// The number of ranges that contain a block.
int depth(const HighlightBlocks& ranges, int blockNumber);

/// The fill colours, from the text outside all ranges (index 0) to the innermost range (index
/// `count`, the base colour).
QVector<QColor> colors(const QColor& base, int count);

}  // namespace BlockRanges

}  // namespace Zorv
