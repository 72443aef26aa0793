#pragma once

#include "editors/code/highlightblocks_p.h"

#include <QObject>
#include <QTextEdit>

#include <array>

class QTimer;

namespace Zorv {

class CodeEditorPrivate;

/// The highlights around the cursor: its line, matching brackets, block ranges. The
/// expensive ones wait until the cursor rests.
class CodeHighlights : public QObject
{
    Q_OBJECT

public:
    explicit CodeHighlights(CodeEditorPrivate* editor);

    /// Call after the cursor has moved, or when something else needs new highlights.
    void update();

    /// Another document is coming: drop the brackets of the old one.
    void forgetParentheses();

    /// Highlights were switched on or off, or have a new look.
    void updateRanges();

    /// Matches brackets once the cursor has rested for a moment.
    void startMatching();

    const HighlightBlocks& blocks() const { return m_blocks; }

    /// The line whose ranges are shown; -1 for none.
    int blockNumber() const { return m_blockNumber; }

    /// Shows the ranges of another line, or none with -1, after `wait` milliseconds.
    void setBlockNumber(int number, int wait);

    /// Shows the ranges of a line at once.
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
