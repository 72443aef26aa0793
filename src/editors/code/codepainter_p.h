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

/// Paints the text of a `CodeEditor` with all that belongs to it. One object
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
    QRect m_rect;  ///< what is to be painted
    QRect m_view;
    QPainter m_painter;
    QPointF m_offset;  ///< of the block in work
    QTextCursor m_cursor;
    QTextBlock m_currentBlock;  ///< of the cursor
    QAbstractTextDocumentLayout::PaintContext m_context;

    /// The cursor waits until all else is painted.
    QTextLayout* m_cursorLayout = nullptr;
    QPointF m_cursorOffset;
    int m_cursorColumn = 0;
};

}  // namespace Zorv
