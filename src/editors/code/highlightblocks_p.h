#pragma once

#include <QList>

namespace Zorv {

/// The block ranges around a line: three lists of equal length.
struct HighlightBlocks
{
    QList<int> open;          ///< first block numbers, outermost first
    QList<int> close;         ///< last block numbers, innermost first
    QList<int> visualIndent;  ///< left edges in text pixels, outermost first

    int count() const { return visualIndent.size(); }
    bool isEmpty() const { return open.isEmpty() || close.isEmpty() || visualIndent.isEmpty(); }
};

inline bool operator==(const HighlightBlocks& a, const HighlightBlocks& b)
{
    return a.open == b.open && a.close == b.close && a.visualIndent == b.visualIndent;
}

}  // namespace Zorv
