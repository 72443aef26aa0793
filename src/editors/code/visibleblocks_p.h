#pragma once

#include <QTextBlock>
#include <QTextDocument>

namespace Zorv {

/// The first visible block at or below `block`; invalid if there is none. It is looked
/// up by its screen line number, so the cost does not depend on the length of the fold.
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
