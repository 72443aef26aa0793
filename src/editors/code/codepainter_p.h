#pragma once

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

class QPaintEvent;

namespace Zorv {

class CodeEditorPrivate;
struct HighlightBlocks;

/// Paints the text of a `CodeEditor` with background, boxes and cursor. One object
/// paints one event.
class CodePainter
{
public:
    explicit CodePainter(CodeEditorPrivate* editor) : m_editor(editor) {}

    void paint(const QPaintEvent* event);

private:
    using Formats = QVector<QTextLayout::FormatRange>;

    void paintGround();
    void paintDepth(const HighlightBlocks& ranges, int depth, qreal top, qreal bottom);
    void paintPlaceholder();
    void paintText();
    void paintBlock(const QTextBlock& block);
    void paintCurrentLine(const QTextBlock& block);
    void paintCursor();
    void paintBelow();
    Formats selectionsOf(const QTextBlock& block) const;
    int cursorColumn(const QTextBlock& block) const;
    bool isOverwriting() const;
    QTextLayout::FormatRange cellFormat(const QTextLayout& layout, int column) const;
    void paintEmptyCell(const QTextBlock& block, int column);

    CodeEditorPrivate* m_editor;
    QRect m_rect;  ///< area to repaint
    QRect m_view;
    QPainter m_painter;
    QPointF m_offset;  ///< of the current block
    QTextCursor m_cursor;
    QTextBlock m_currentBlock;  ///< the cursor's block
    QAbstractTextDocumentLayout::PaintContext m_context;

    /// The cursor is painted last, so its place is kept here.
    QTextLayout* m_cursorLayout = nullptr;
    QPointF m_cursorOffset;
    int m_cursorColumn = 0;
};

}  // namespace Zorv
