#include "code/codedoc/codelines.h"

#include "code/codedoc/codedocument.h"

namespace Zorv {

void insertLines(CodeDocument* document, int line, const QString& text)
{
    const QTextBlock block = document->findBlockByNumber(line);
    QTextCursor cursor(document);
    if (block.isValid()) {
        cursor.setPosition(block.position());
        document->insertOnCursor(text + QLatin1Char('\n'), cursor);
    } else {
        cursor.movePosition(QTextCursor::End);
        document->insertOnCursor(QLatin1Char('\n') + text, cursor);
    }
}

void replaceLines(CodeDocument* document, int first, int last, const QString& text)
{
    const QTextBlock end = document->findBlockByNumber(last);
    QTextCursor cursor(document->findBlockByNumber(first));
    cursor.setPosition(end.position() + end.length() - 1, QTextCursor::KeepAnchor);
    document->replaceSelection(text, cursor);
}

void removeLines(CodeDocument* document, int first, int last)
{
    const QTextBlock begin = document->findBlockByNumber(first);
    const QTextBlock behind = document->findBlockByNumber(last + 1);
    QTextCursor cursor(document);
    cursor.setPosition(behind.isValid() || first == 0 ? begin.position() : begin.position() - 1);
    if (behind.isValid()) {
        cursor.setPosition(behind.position(), QTextCursor::KeepAnchor);
    } else {
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    }
    document->replaceSelection(QString(), cursor);
}

}  // namespace Zorv
