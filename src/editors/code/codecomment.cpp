#include "editors/code/codecomment_p.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace Zorv {

namespace {

/// Gives by how much the text has grown.
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
    // At the start of a line, a cursor alone reaches into it as well.
    int end = cursor->hasSelection() ? cursor->selectionEnd() : block.position() + 1;
    int last = block.position();
    QTextCursor edit(*cursor);
    // Undo leads back to where the cursor was.
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
