#include "editors/code/codeeditor.h"

#include "code/codedoc/codeblockdata.h"
#include "code/codedoc/codedocument.h"
#include "editors/code/codecompletion_p.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codeeditorextraarea_p.h"
#include "editors/code/codefolding_p.h"
#include "editors/code/codehighlights_p.h"
#include "editors/code/codelines_p.h"
#include "editors/code/codepainter_p.h"
#include "editors/code/foldedblocks_p.h"
#include "editors/code/heldview_p.h"
#include "editors/code/plaintooltip_p.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>

namespace Zorv {

namespace {

QTextBlock blockAtLine(const QTextDocument* document, int line)
{
    const QTextBlock block = document->findBlockByNumber(std::max(line, 0));
    return block.isValid() ? block : document->lastBlock();
}

/// The first message at a character; empty if there is none.
QString messageAt(const QTextCursor& cursor)
{
    if (const CodeBlockData* data = CodeBlockData::testBlockData(cursor.block())) {
        const int column = cursor.positionInBlock();
        for (const CodeBlockData::SyntaxMessage& message : data->syntaxMessages()) {
            if (message.start <= column && column <= message.end) {
                return message.text;
            }
        }
    }
    return {};
}

/// The block `count` screen lines further down; folded lines do not count.
QTextBlock visibleBlockBelow(const QTextBlock& block, int count)
{
    const QTextDocument* document = block.document();
    const QTextBlock below = document->findBlockByLineNumber(block.firstLineNumber() + count);
    return below.isValid() ? below : document->lastBlock();
}

/// True for left button events inside the view. Outside it, a drag has to scroll.
bool isClickInside(QEvent* event, const QWidget* viewport)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const bool isLeft = mouse->button() == Qt::LeftButton || mouse->buttons() & Qt::LeftButton;
        return isLeft && viewport->rect().contains(mouse->pos());
    }
    default:
        return false;
    }
}

}  // namespace

CodeEditor::CodeEditor(QWidget* parent)
    : QPlainTextEdit(parent), d(std::make_unique<CodeEditorPrivate>(this))
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setFrameStyle(QFrame::NoFrame);
    d->extraArea->updateWidth();
}

CodeEditor::~CodeEditor() = default;

void CodeEditor::setDocument(CodeDocument* document)
{
    d->attach(document);
}

CodeDocument* CodeEditor::codeDocument() const
{
    return d->document;
}

void CodeEditor::setSyntaxFormatting(const SyntaxFormatting& formatting)
{
    d->formatting = formatting;
    d->extraArea->updateWidth();
    d->extraArea->place();
    updateBlockHighlight();
}

const CodeEditor::SyntaxFormatting& CodeEditor::syntaxFormatting() const
{
    return d->formatting;
}

void CodeEditor::updateBlockHighlight()
{
    d->highlights->updateRanges();
    viewport()->update();
    d->extraArea->update();
}

void CodeEditor::setCurrentLine(const LinePos& place)
{
    const QTextBlock block = blockAtLine(document(), place.line);
    reveal(block);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + qBound(0, place.column, block.length() - 1));
    setTextCursor(cursor);
    verticalScrollBar()->setValue(place.scroll);
    d->highlights->startMatching();
    emit cursorChanged({cursor.blockNumber(), cursor.positionInBlock()});
}

void CodeEditor::setCurrentLine(unsigned line, LineType type)
{
    const int count = blockCount();
    const int target = int(std::min(line, unsigned(count - 1)));
    const int page = displayedLineCount();
    QTextCursor cursor(blockAtLine(document(), target));
    reveal(cursor.block());
    if (target >= page) {
        int margin = type == TopLine ? page : type == CenterLine ? page / 2 : 0;
        margin = std::min(margin, count - 1 - target);
        setTextCursor(QTextCursor(visibleBlockBelow(cursor.block(), margin)));
    }
    setTextCursor(cursor);
    d->highlights->startMatching();
}

CodeEditor::LinePos CodeEditor::currentPlace() const
{
    const QTextCursor cursor = textCursor();
    return {cursor.blockNumber(), cursor.positionInBlock(), verticalScrollBar()->value()};
}

int CodeEditor::displayedLineCount() const
{
    return viewport()->height() / std::max(fontMetrics().height(), 1);
}

void CodeEditor::toggleBlockVisible(const QTextBlock& block)
{
    CodeFolding::toggle(block);
    d->updateLayout();
}

void CodeEditor::toggleFold()
{
    QTextBlock block = textCursor().block();
    if (!CodeFolding::isHead(block) && codeDocument()) {
        block = codeDocument()->lowerBlockAtOrAbove(block, CodeFolding::indent(block));
    }
    toggleBlockVisible(block);
    moveCursorVisible(true);
}

void CodeEditor::foldAll()
{
    CodeFolding::foldAll(document());
    d->updateLayout();
    moveCursorVisible(true);
}

void CodeEditor::unfoldAll()
{
    CodeFolding::unfoldAll(document());
    d->updateLayout();
}

void CodeEditor::reveal(const QTextBlock& block)
{
    if (CodeFolding::reveal(block)) {
        d->updateLayout();
    }
}

void CodeEditor::moveLinesUp()
{
    d->moveLines(CodeLines::Up);
}

void CodeEditor::moveLinesDown()
{
    d->moveLines(CodeLines::Down);
}

void CodeEditor::moveCursorVisible(bool ensure)
{
    QTextCursor cursor = textCursor();
    if (!cursor.block().isVisible()) {
        cursor.setVisualNavigation(true);
        cursor.movePosition(QTextCursor::Up);
        if (!cursor.block().isVisible()) {
            cursor.setPosition(CodeFolding::visibleAbove(cursor.block()).position());
        }
        setTextCursor(cursor);
    }
    if (ensure) {
        ensureCursorVisible();
    }
}

QList<int> CodeEditor::rangeStarts() const
{
    return d->highlights->blocks().open;
}

QList<int> CodeEditor::rangeEnds() const
{
    return d->highlights->blocks().close;
}

bool CodeEditor::completerFromFile(const QString& fileName)
{
    return d->completion->readFile(fileName);
}

QString CodeEditor::completerError() const
{
    return d->completion->error();
}

QCompleter* CodeEditor::completer() const
{
    return d->completion->completer();
}

void CodeEditor::setWordFinder(const WordFinder& finder)
{
    d->completion->setFinder(finder);
}

void CodeEditor::showCompletions(QStringListModel* words)
{
    d->completion->show(words);
}

void CodeEditor::mousePressEvent(QMouseEvent* event)
{
    d->folds->mousePressed(event);
    QPlainTextEdit::mousePressEvent(event);
}

void CodeEditor::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) {
        d->folds->mouseMoved(event);
    } else {
        if (viewport()->cursor().shape() == Qt::BlankCursor) {
            viewport()->setCursor(Qt::IBeamCursor);
        }
        QPlainTextEdit::mouseMoveEvent(event);
    }
}

void CodeEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier) {
        setOverwriteMode(!overwriteMode());
        viewport()->update();
        d->baseKeyPress(event);
        return;
    }
    viewport()->setCursor(Qt::BlankCursor);
    d->folds->clearPreview();
    if (d->completion->takesKey(event)) {
        event->ignore();
        return;
    }
    d->baseKeyPress(event);
    d->completion->keyPressed(event);
}

void CodeEditor::paintEvent(QPaintEvent* event)
{
    CodePainter(d.get()).paint(event);
}

void CodeEditor::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    d->extraArea->place();
}

bool CodeEditor::viewportEvent(QEvent* event)
{
    const HeldView view(isClickInside(event, viewport()) ? this : nullptr);
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (!(QGuiApplication::keyboardModifiers() & Qt::ControlModifier)) {
            PlainToolTip::show(help->globalPos(), messageAt(cursorForPosition(help->pos())),
                               viewport());
        }
        return true;
    }
    if (event->type() == QEvent::Leave) {
        d->folds->clearPreview();
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        if (menu->reason() == QContextMenuEvent::Mouse && !textCursor().hasSelection()) {
            setTextCursor(cursorForPosition(menu->pos()));
        }
    }
    return QPlainTextEdit::viewportEvent(event);
}

QMimeData* CodeEditor::createMimeDataFromSelection() const
{
    // Qt's version would replace non-breaking spaces by plain ones.
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    auto* mime = new QMimeData;
    mime->setText(text);
    return mime;
}

}  // namespace Zorv
