#pragma once

#include <QList>

namespace Zorv {

/// The ranges around a line: three lists of one length.
struct HighlightBlocks
{
    QList<int> open;          ///< numbers of the first blocks, the outermost first
    QList<int> close;         ///< numbers of the last blocks, the innermost first
    QList<int> visualIndent;  ///< left edges in pixels of the text, the outermost first

    int count() const { return visualIndent.size(); }
    bool isEmpty() const { return open.isEmpty() || close.isEmpty() || visualIndent.isEmpty(); }
};

inline bool operator==(const HighlightBlocks& a, const HighlightBlocks& b)
{
    return a.open == b.open && a.close == b.close && a.visualIndent == b.visualIndent;
}

}  // namespace Zorv
