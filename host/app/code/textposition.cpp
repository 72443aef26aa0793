#include "app/code/textposition.h"

#include "family/familydocument.h"

#include <zorv/editors/code/codeeditor.h>

#include <QTextBlock>

namespace App {

TextPosition characterAt(const Zorv::CodeEditor* editor, const QPoint& point)
{
    // cursorForPosition() gives the nearest gap between two characters, not the character itself.
    QTextCursor cursor = editor->cursorForPosition(point);
    const QRect gap = editor->cursorRect(cursor);
    int column = cursor.positionInBlock();
    const bool isLeft = point.x() < gap.left();
    if (isLeft != editor->isRightToLeft()) {
        --column;
    }
    const bool isBeside = point.y() < gap.top() || point.y() > gap.bottom();
    if (isBeside || column < 0 || column >= cursor.block().length() - 1) {
        return {};
    }
    return {cursor.blockNumber(), column};
}

Family::FamilyDocument* documentIn(const Zorv::CodeEditor* editor)
{
    // Every code document of this program is a FamilyDocument.
    return static_cast<Family::FamilyDocument*>(editor->codeDocument());
}

}  // namespace App
