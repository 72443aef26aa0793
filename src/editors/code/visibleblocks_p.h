#pragma once

#include <QTextBlock>
#include <QTextDocument>

namespace Zorv {

/// The first block at or below `block` that no fold hides, found by the number of its
/// line on the screen however long the fold is; invalid if there is none.
inline QTextBlock visibleFrom(QTextBlock block)
{
    if (block.isValid() && !block.isVisible()) {
        const QTextBlock shown = block.document()->findBlockByLineNumber(block.firstLineNumber());
        if (shown.isValid() && shown.position() > block.position()) {
            block = shown;
        }
    }
    while (block.isValid() && !block.isVisible()) {
        block = block.next();
    }
    return block;
}

}  // namespace Zorv
