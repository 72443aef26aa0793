#include "code/codedoc/codedocument.h"

#include "code/codedoc/codedocument_p.h"

namespace Zorv {

void CodeDocument::beginChange(const QString& title)
{
    if (d->changeDepth == 0) {
        d->stepsBeforeChange = availableUndoSteps();
        d->titles.begin(title);
        d->cursor.beginEditBlock();
    } else {
        d->titles.name(title);
    }
    ++d->changeDepth;
}

void CodeDocument::endChange()
{
    if (d->changeDepth == 0) {
        return;
    }
    // End the edit block first: what the pass reports is still part of the change.
    if (d->changeDepth == 1) {
        d->cursor.endEditBlock();
        d->titles.end();
    }
    --d->changeDepth;
}

void CodeDocument::placeChange(const QTextCursor& edit)
{
    if (d->changeDepth == 0 || !isUndoRedoEnabled() ||
        availableUndoSteps() != d->stepsBeforeChange) {
        return;
    }
    // The edit block is still empty, so it can be started again elsewhere. Undo puts the cursor at
    // its start. If the first edit begins exactly there, Qt puts it behind the restored text: for
    // whole lines that is the line below.
    QTextCursor start(this);
    const int first = edit.selectionStart();
    const bool hasLineEnd = findBlock(first) != findBlock(edit.selectionEnd());
    start.setPosition(hasLineEnd ? first + 1 : first);
    d->cursor.endEditBlock();
    start.beginEditBlock();
}

bool CodeDocument::isCodeBeingChanged() const
{
    return d->changeDepth > 0;
}

void CodeDocument::undo()
{
    QTextDocument::undo();
}

void CodeDocument::redo()
{
    QTextDocument::redo();
}

bool CodeDocument::canUndo() const
{
    return isUndoAvailable();
}

bool CodeDocument::canRedo() const
{
    return isRedoAvailable();
}

QString CodeDocument::undoTitle() const
{
    return d->titles.undone();
}

QString CodeDocument::redoTitle() const
{
    return d->titles.redone();
}

QTextCursor CodeDocument::cursor() const
{
    return d->cursor;
}

void CodeDocument::insert(const QString& text)
{
    d->cursor.movePosition(QTextCursor::End);
    insertOnCursor(text, d->cursor);
}

void CodeDocument::insertOnCursor(const QString& text, QTextCursor& cursor)
{
    const int first = cursor.block().blockNumber();
    const QTextBlock behind = cursor.block().next();
    placeChange(cursor);
    cursor.insertText(text);
    if (d->mustParseNow()) {
        d->parseNow(findBlockByNumber(first), behind);
    }
}

void CodeDocument::replaceSelection(const QString& text, QTextCursor& cursor)
{
    const int first = findBlock(cursor.selectionStart()).blockNumber();
    placeChange(cursor);
    if (text.isEmpty()) {
        cursor.removeSelectedText();
    } else {
        cursor.insertText(text);
    }
    if (d->mustParseNow()) {
        d->parseNow(findBlockByNumber(first), cursor.block().next());
    }
}

void CodeDocument::insertAfter(const CodeNode* node, const QString& text, bool sameLine)
{
    if (!node) {
        d->cursor.movePosition(QTextCursor::End);
        insertOnCursor(text + QLatin1Char('\n'), d->cursor);
        return;
    }
    QTextBlock block = sameLine ? node->block() : findBlockByNumber(node->lastLine());
    if (!block.isValid()) {
        block = lastBlock();
    }
    d->cursor.setPosition(block.position() + block.length() - 1);
    insertOnCursor(QLatin1Char('\n') + text, d->cursor);
}

void CodeDocument::insertBefore(const CodeNode* node, const QString& text, bool sameLine)
{
    if (!node) {
        d->cursor.movePosition(QTextCursor::Start);
        insertOnCursor(text + QLatin1Char('\n'), d->cursor);
        return;
    }
    QTextBlock block = sameLine ? node->block() : findBlockByNumber(node->firstLine());
    if (!block.isValid()) {
        block = begin();
    }
    const QTextBlock above = block.previous();
    if (above.isValid()) {
        d->cursor.setPosition(above.position() + above.length() - 1);
        insertOnCursor(QLatin1Char('\n') + text, d->cursor);
    } else {
        d->cursor.setPosition(block.position());
        insertOnCursor(text + QLatin1Char('\n'), d->cursor);
    }
}

}  // namespace Zorv
