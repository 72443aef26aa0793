#include "editors/code/codecomment_p.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace Zorv {

namespace {

/// Returns by how much the text has grown.
int changeLine(QTextCursor* edit, QChar mark, bool comments)
{
    if (comments) {
        edit->insertText(QString(mark));
        return 1;
    }
    if (edit->block().text().startsWith(mark)) {
        edit->deleteChar();
        return -1;
    }
    return 0;
}

}  // namespace

void CodeComment::toggle(QTextCursor* cursor, QChar mark)
{
    const QTextDocument* document = cursor->document();
    QTextBlock block = document->findBlock(cursor->selectionStart());
    const bool comments = !block.text().startsWith(mark);
    // A cursor without a selection works on its line even if it is at the start.
    int end = cursor->hasSelection() ? cursor->selectionEnd() : block.position() + 1;
    int last = block.position();
    QTextCursor edit(*cursor);
    // The edit begins at the cursor's old position, so that undo returns there.
    edit.beginEditBlock();
    for (; block.isValid() && block.position() < end; block = block.next()) {
        last = block.position();
        edit.setPosition(last);
        end += changeLine(&edit, mark, comments);
    }
    edit.endEditBlock();
    cursor->setPosition(last);
}

}  // namespace Zorv
