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

/// The parts of a `CodeEditor`, and what they need of it and of each other.
class CodeEditorPrivate : public QObject
{
    Q_OBJECT

public:
    explicit CodeEditorPrivate(CodeEditor* editor);
    ~CodeEditorPrivate() override;

    /// @name What Qt shows to the widget alone
    /// @{
    QTextBlock firstVisibleBlock() const { return q->firstVisibleBlock(); }
    QPointF contentOffset() const { return q->contentOffset(); }
    QRectF blockRect(const QTextBlock& block) const;  ///< in the viewport
    QAbstractTextDocumentLayout::PaintContext paintContext() const;
    void setMargins(int left, int right) { q->setViewportMargins(left, 0, right, 0); }
    void baseKeyPress(QKeyEvent* event);
    void basePaint(QPaintEvent* event) { q->QPlainTextEdit::paintEvent(event); }
    /// @}

    void attach(CodeDocument* newDocument);
    void cursorMoved();

    /// Takes the cursor along, and into the view.
    void moveLines(CodeLines::Direction direction);

    /// Tells layout and scroll bars that lines have come or gone from the view.
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

    /// A key that the base class handles: where the text was before.
    struct Key
    {
        int revision;
        int position;
    };
    const Key* currentKey = nullptr;

    std::unique_ptr<KeptPlace> keptPlace;  ///< while a file is read
};

}  // namespace Zorv
