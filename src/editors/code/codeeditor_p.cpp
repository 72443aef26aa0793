#include "editors/code/codeeditor_p.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/codecompletion_p.h"
#include "editors/code/codeeditorextraarea_p.h"
#include "editors/code/codefolding_p.h"
#include "editors/code/codehighlights_p.h"
#include "editors/code/foldedblocks_p.h"
#include "editors/code/keptplace_p.h"
#include "editors/code/visibleblocks_p.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QPlainTextDocumentLayout>
#include <QScopedValueRollback>

namespace Zorv {

CodeEditorPrivate::CodeEditorPrivate(CodeEditor* editor)
    : q(editor), extraArea(new CodeEditorExtraArea(this)), highlights(new CodeHighlights(this)),
      folds(new FoldedBlocks(this)), completion(new CodeCompletion(this))
{
    formatting.parenFormat.setForeground(Qt::red);
    formatting.parenRangeFormat.setBackground(QColor(Qt::magenta).lighter(190));
    formatting.parenMismatchFormat.setBackground(Qt::magenta);
    formatting.blockRangeColor = editor->palette().color(QPalette::Base);
    connect(q, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditorPrivate::cursorMoved);
}

// Delete the gutter first: the widget still emits update signals while it is destroyed.
CodeEditorPrivate::~CodeEditorPrivate()
{
    delete extraArea;
}

QRectF CodeEditorPrivate::blockRect(const QTextBlock& block) const
{
    return q->blockBoundingGeometry(block).translated(q->contentOffset());
}

QAbstractTextDocumentLayout::PaintContext CodeEditorPrivate::paintContext() const
{
    return q->getPaintContext();
}

void CodeEditorPrivate::baseKeyPress(QKeyEvent* event)
{
    // Qt would insert U+2028, which is not a line end in the file.
    if (event->matches(QKeySequence::InsertLineSeparator) && !q->isReadOnly()) {
        q->textCursor().insertBlock();
        q->ensureCursorVisible();
        return;
    }
    const Key key{q->document()->revision(), q->textCursor().position()};
    const QScopedValueRollback<const Key*> scope(currentKey, &key);
    q->QPlainTextEdit::keyPressEvent(event);
}

void CodeEditorPrivate::attach(CodeDocument* newDocument)
{
    if (document) {
        document->disconnect(this);
    }
    keptPlace.reset();
    completion->hide();
    folds->follow(nullptr);
    extraArea->endDrag();
    document = nullptr;
    q->QPlainTextEdit::setDocument(nullptr);
    highlights->forgetParentheses();
    if (newDocument) {
        document = newDocument;
        q->QPlainTextEdit::setDocument(newDocument);
        follow(newDocument);
    }
    extraArea->updateWidth();
    highlights->update();
}

void CodeEditorPrivate::follow(CodeDocument* newDocument)
{
    folds->follow(newDocument);
    connect(newDocument, &CodeDocument::closing, this, [this] { attach(nullptr); });
    connect(newDocument, &CodeDocument::aboutToRead, this,
            [this] { keptPlace = std::make_unique<KeptPlace>(this); });
    connect(newDocument, &CodeDocument::haveRead, this, &CodeEditorPrivate::haveRead);
}

void CodeEditorPrivate::haveRead()
{
    if (const std::unique_ptr<KeptPlace> place = std::move(keptPlace)) {
        place->restore(this);
        cursorMoved();
    }
}

void CodeEditorPrivate::cursorMoved()
{
    // While a file is being read, the cursor position means nothing.
    if (keptPlace) {
        return;
    }
    const QTextCursor cursor = q->textCursor();
    if (leaveFold(cursor)) {
        return;
    }
    q->reveal(cursor.block());
    highlights->update();
    emit q->cursorChanged({cursor.blockNumber(), cursor.positionInBlock()});
}

/// Moves the cursor past a fold: Qt would leave it inside. True if the cursor was moved, which has
/// sent its own signals.
bool CodeEditorPrivate::leaveFold(const QTextCursor& cursor)
{
    if (!currentKey || currentKey->revision != q->document()->revision() ||
        cursor.block().isVisible()) {
        return false;
    }
    const bool isForward = cursor.position() > currentKey->position;
    const QTextBlock block =
        isForward ? visibleFrom(cursor.block()) : CodeFolding::visibleAbove(cursor.block());
    if (!block.isValid()) {
        return false;
    }
    QTextCursor outside = cursor;
    outside.setPosition(block.position() + (isForward ? 0 : block.length() - 1),
                        cursor.hasSelection() ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
    q->setTextCursor(outside);
    return true;
}

void CodeEditorPrivate::moveLines(CodeLines::Direction direction)
{
    QTextCursor cursor = q->textCursor();
    if (!q->isReadOnly() && CodeLines::move(&cursor, direction)) {
        updateLayout();
        q->setTextCursor(cursor);
        q->ensureCursorVisible();
    }
}

void CodeEditorPrivate::updateLayout()
{
    auto* layout = qobject_cast<QPlainTextDocumentLayout*>(q->document()->documentLayout());
    if (layout) {
        layout->requestUpdate();
        emit layout->documentSizeChanged(layout->documentSize());
    }
}

}  // namespace Zorv
