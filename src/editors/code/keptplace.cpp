#include "editors/code/keptplace_p.h"

#include "code/codedoc/codeblockdata.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codefolding_p.h"
#include "editors/code/visibleblocks_p.h"

#include <QScrollBar>

#include <algorithm>

namespace Zorv {

KeptPlace::KeptPlace(const CodeEditorPrivate* editor)
    : m_line(editor->q->textCursor().blockNumber()),
      m_column(editor->q->textCursor().positionInBlock()),
      m_topLine(editor->firstVisibleBlock().blockNumber()),
      m_topOffset(editor->q->verticalScrollBar()->value() -
                  editor->firstVisibleBlock().firstLineNumber()),
      m_left(editor->q->horizontalScrollBar()->value()), m_lineCount(editor->q->blockCount())
{
    for (QTextBlock b = editor->q->document()->begin(); b.isValid(); b = b.next()) {
        const CodeBlockData* data = CodeBlockData::testBlockData(b);
        if (data && data->isFolded() && CodeFolding::hides(b)) {
            m_folds.append({b.blockNumber(), b.text()});
        }
    }
}

void KeptPlace::restore(CodeEditorPrivate* editor) const
{
    CodeEditor* q = editor->q;
    restoreFolds(editor);
    q->setCurrentLine(CodeEditor::LinePos{m_line, m_column, q->verticalScrollBar()->value()});
    const int top = std::min(m_topLine, q->blockCount() - 1);
    const QTextBlock block = visibleFrom(q->document()->findBlockByNumber(top));
    q->verticalScrollBar()->setValue(block.firstLineNumber() + m_topOffset);
    q->horizontalScrollBar()->setValue(m_left);
}

/// From the bottom up, so that inner folds are restored before outer ones.
void KeptPlace::restoreFolds(CodeEditorPrivate* editor) const
{
    const QTextDocument* document = editor->q->document();
    const int added = document->blockCount() - m_lineCount;
    std::for_each(m_folds.rbegin(), m_folds.rend(), [&](const Fold& fold) {
        for (const int line : {fold.line, fold.line + added}) {
            const QTextBlock block = document->findBlockByNumber(line);
            if (block.isValid() && block.text() == fold.head) {
                if (block.next().isVisible()) {
                    CodeFolding::toggle(block);
                }
                return;
            }
        }
    });
    if (!m_folds.isEmpty()) {
        editor->updateLayout();
    }
}

}  // namespace Zorv
