#include "editors/code/codehighlights_p.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/blockranges_p.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codeeditorextraarea_p.h"
#include "editors/code/parenthesismatch_p.h"

#include <QScrollBar>
#include <QTimer>

namespace Zorv {

namespace {

constexpr int ParenWait = 50;
constexpr int BlockWait = 100;

}  // namespace

CodeHighlights::CodeHighlights(CodeEditorPrivate* editor)
    : QObject(editor), m_editor(editor), m_parenTimer(new QTimer(this)),
      m_blockTimer(new QTimer(this))
{
    m_parenTimer->setSingleShot(true);
    m_blockTimer->setSingleShot(true);
    connect(m_parenTimer, &QTimer::timeout, this, &CodeHighlights::matchParentheses);
    connect(m_blockTimer, &QTimer::timeout, this, &CodeHighlights::findRanges);
    // The right edges of ranges do not scroll, but Qt shifts the painted pixels.
    connect(editor->q->horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!m_blocks.isEmpty()) {
            m_editor->q->viewport()->update();
        }
    });
}

void CodeHighlights::update()
{
    const CodeEditor::SyntaxFormatting& formatting = m_editor->formatting;
    if (formatting.parenMatching && m_editor->q->hasFocus()) {
        m_parenTimer->start(m_selections[ParenthesesSelection].isEmpty() ? ParenWait : 0);
    }
    updateCurrentLine();
    if (formatting.highlightBlocks) {
        setBlockNumber(m_editor->q->textCursor().blockNumber(), BlockWait);
    }
}

void CodeHighlights::forgetParentheses()
{
    m_parenTimer->stop();
    setExtraSelections(ParenthesesSelection, {});
}

/// Highlights that were switched off disappear at once.
void CodeHighlights::updateRanges()
{
    if (!m_editor->formatting.parenMatching) {
        forgetParentheses();
    }
    if (m_editor->formatting.highlightBlocks) {
        update();
        return;
    }
    m_blockTimer->stop();
    m_blocks.open.clear();
    updateCurrentLine();
}

void CodeHighlights::startMatching()
{
    m_parenTimer->start(ParenWait);
}

void CodeHighlights::setBlockNumber(int number, int wait)
{
    m_blockNumber = number;
    m_blockTimer->start(wait);
}

void CodeHighlights::showRangesOf(int number)
{
    m_blockNumber = number;
    m_blockTimer->stop();
    findRanges();
}

void CodeHighlights::updateCurrentLine()
{
    CodeEditor* q = m_editor->q;
    Selections line;
    if (m_editor->formatting.highlightCurrentLine) {
        QTextEdit::ExtraSelection selection;
        selection.format.setBackground(m_editor->formatting.currentLineColor);
        selection.format.setProperty(QTextFormat::FullWidthSelection, true);
        selection.cursor = q->textCursor();
        selection.cursor.clearSelection();
        line.append(selection);
    }
    setExtraSelections(CurrentLineSelection, line);
    const int block = q->textCursor().blockNumber();
    if (block != m_lastCursorBlock) {
        updateGutter(m_lastCursorBlock);
        updateGutter(block);
        m_lastCursorBlock = block;
        emit q->currentLineChanged(block);
    }
}

void CodeHighlights::updateGutter(int blockNumber)
{
    const QTextBlock block = m_editor->q->document()->findBlockByNumber(blockNumber);
    if (blockNumber >= 0 && block.isValid() && block.isVisible()) {
        const QRect rect = m_editor->blockRect(block).toAlignedRect();
        m_editor->extraArea->update(0, rect.y(), m_editor->extraArea->width(), rect.height());
    }
}

void CodeHighlights::matchParentheses()
{
    const CodeEditor* q = m_editor->q;
    if (q->isReadOnly() || !m_editor->document || !m_editor->formatting.parenMatching) {
        return;
    }
    QTextCursor back = q->textCursor();
    QTextCursor ahead = back;
    Selections selections;
    const int before = ParenthesisMatch::backward(&back, *m_editor->document);
    const int behind = ParenthesisMatch::forward(&ahead, *m_editor->document);
    addMatch(back, before, &selections);
    addMatch(ahead, behind, &selections);
    setExtraSelections(ParenthesesSelection, selections);
}

void CodeHighlights::addMatch(const QTextCursor& match, int result, Selections* selections) const
{
    const CodeEditor::SyntaxFormatting& formatting = m_editor->formatting;
    if (result == ParenthesisMatch::Mismatch) {
        selections->append({match, formatting.parenMismatchFormat});
    } else if (result == ParenthesisMatch::Match) {
        if (m_parenRangeEnabled) {
            selections->append({match, formatting.parenRangeFormat});
        }
        QTextCursor bracket = match;
        for (const int start : {match.selectionStart(), match.selectionEnd() - 1}) {
            bracket.setPosition(start);
            bracket.setPosition(start + 1, QTextCursor::KeepAnchor);
            selections->append({bracket, formatting.parenFormat});
        }
    }
}

void CodeHighlights::findRanges()
{
    const CodeEditor* q = m_editor->q;
    QTextBlock block;
    if (m_blockNumber >= 0) {
        block = q->document()->findBlockByNumber(m_blockNumber);
    }
    const HighlightBlocks blocks = BlockRanges::around(block, *m_editor);
    if (!(blocks == m_blocks)) {
        m_blocks = blocks;
        q->viewport()->update();
        m_editor->extraArea->update();
    }
}

void CodeHighlights::setExtraSelections(ExtraSelectionKind kind, const Selections& selections)
{
    if (m_selections[kind].isEmpty() && selections.isEmpty()) {
        return;
    }
    m_selections[kind] = selections;
    Selections all;
    for (const Selections& part : m_selections) {
        all += part;
    }
    m_editor->q->setExtraSelections(all);
}

}  // namespace Zorv
