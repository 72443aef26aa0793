#pragma once

#include "editors/code/highlightblocks_p.h"

#include <QObject>
#include <QTextEdit>

#include <array>

class QTimer;

namespace Zorv {

class CodeEditorPrivate;

/// What is marked around the cursor: its line, two brackets that match, the ranges
/// of lines that it stands in. The costly parts wait until the cursor rests.
class CodeHighlights : public QObject
{
    Q_OBJECT

public:
    explicit CodeHighlights(CodeEditorPrivate* editor);

    /// The cursor has moved, or what is to be marked has changed.
    void update();

    /// Another document comes: brackets of the old one are forgotten.
    void forgetParentheses();

    /// What is marked has been switched on or off, or looks otherwise.
    void updateRanges();

    /// Brackets are looked for when the cursor has rested a little.
    void startMatching();

    const HighlightBlocks& blocks() const { return m_blocks; }

    /// The line whose ranges are shown, -1 for none.
    int blockNumber() const { return m_blockNumber; }

    /// Shows the ranges of another line, or with -1 none, after `wait` milliseconds.
    void setBlockNumber(int number, int wait);

    /// Shows those of a line at once.
    void showRangesOf(int number);

private:
    enum ExtraSelectionKind { CurrentLineSelection, ParenthesesSelection, SelectionKindCount = 4 };
    using Selections = QList<QTextEdit::ExtraSelection>;

    void updateCurrentLine();
    void updateGutter(int blockNumber);
    void matchParentheses();
    void addMatch(const QTextCursor& match, int result, Selections* selections) const;
    void findRanges();
    void setExtraSelections(ExtraSelectionKind kind, const Selections& selections);

    CodeEditorPrivate* m_editor;
    std::array<Selections, SelectionKindCount> m_selections;
    QTimer* m_parenTimer;
    QTimer* m_blockTimer;
    HighlightBlocks m_blocks;
    int m_blockNumber = -1;
    int m_lastCursorBlock = -1;
    bool m_parenRangeEnabled = true;
};

}  // namespace Zorv
