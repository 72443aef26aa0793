#include "editors/code/codehighlights_p.h"

#include "editors/code/codeeditor_p.h"

#include <QTimer>

namespace Zorv {

CodeHighlights::CodeHighlights(CodeEditorPrivate* editor)
    : QObject(editor), m_editor(editor), m_parenTimer(new QTimer(this)),
      m_blockTimer(new QTimer(this))
{
    m_parenTimer->setSingleShot(true);
    m_blockTimer->setSingleShot(true);
    connect(m_parenTimer, &QTimer::timeout, this, &CodeHighlights::matchParentheses);
    connect(m_blockTimer, &QTimer::timeout, this, &CodeHighlights::findRanges);
}

void CodeHighlights::update()
{
    updateCurrentLine();
}

void CodeHighlights::forgetParentheses()
{
    m_parenTimer->stop();
    setExtraSelections(ParenthesesSelection, {});
}

void CodeHighlights::updateRanges() {}

void CodeHighlights::startMatching()
{
    m_parenTimer->start(50);
}

void CodeHighlights::setBlockNumber(int number, int wait)
{
    m_blockNumber = number;
    m_blockTimer->start(wait);
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
        m_lastCursorBlock = block;
        emit q->currentLineChanged(block);
    }
}

void CodeHighlights::matchParentheses() {}

void CodeHighlights::findRanges() {}

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
