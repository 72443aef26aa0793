#pragma once

#include "editors/code/codeeditor.h"
#include "editors/code/codelines_p.h"

#include <QPointer>
#include <QTextBlock>

#include <memory>

namespace Zorv {

class CodeCompletion;
class CodeEditorExtraArea;
class CodeHighlights;
class FoldedBlocks;
class KeptPlace;

/// The parts of a `CodeEditor`, and what they need from it and from each other.
class CodeEditorPrivate : public QObject
{
    Q_OBJECT

public:
    explicit CodeEditorPrivate(CodeEditor* editor);
    ~CodeEditorPrivate() override;

    /// @name Access to protected functions of the widget
    /// @{
    QTextBlock firstVisibleBlock() const { return q->firstVisibleBlock(); }
    QPointF contentOffset() const { return q->contentOffset(); }
    QRectF blockRect(const QTextBlock& block) const;  ///< in viewport coordinates
    QAbstractTextDocumentLayout::PaintContext paintContext() const;
    void setMargins(int left, int right) { q->setViewportMargins(left, 0, right, 0); }
    void baseKeyPress(QKeyEvent* event);
    void basePaint(QPaintEvent* event) { q->QPlainTextEdit::paintEvent(event); }
    /// @}

    void attach(CodeDocument* newDocument);
    void cursorMoved();

    /// Moves the cursor with the lines, and scrolls it into view.
    void moveLines(CodeLines::Direction direction);

    /// Updates layout and scroll bars after lines were shown or hidden.
    void updateLayout();

    CodeEditor* const q;
    QPointer<CodeDocument> document;
    CodeEditor::SyntaxFormatting formatting;
    CodeEditorExtraArea* extraArea;
    CodeHighlights* highlights;
    FoldedBlocks* folds;
    CodeCompletion* completion;

private:
    void follow(CodeDocument* newDocument);
    void haveRead();
    bool leaveFold(const QTextCursor& cursor);

    /// State of the text before the base class handles a key.
    struct Key
    {
        int revision;
        int position;
    };
    const Key* currentKey = nullptr;

    std::unique_ptr<KeptPlace> keptPlace;  ///< set only while a file is being read
};

}  // namespace Zorv
