#include "editors/code/codepainter_p.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/blockranges_p.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codehighlights_p.h"
#include "editors/code/foldedblocks_p.h"
#include "editors/code/visibleblocks_p.h"

#include <QPaintEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

// Replaces the painting of QPlainTextEdit, which cannot draw block ranges behind the text or boxes
// after folded lines. The layers, from back to front: the background with the nested block ranges,
// the placeholder, the text with the current line and selections, the fold boxes, the cursor, and
// the preview of a fold. Only lines that meet the dirty rectangle are drawn, and folded lines are
// skipped by their screen line number, so the cost depends on the view and not on the document.

namespace Zorv {

namespace {

constexpr int NoCursor = -1;
constexpr int RangeStep = 8;    ///< pixels: inset of the right edge from the outer range
constexpr int RangeMargin = 6;  ///< pixels: how far ranges are painted below the view
constexpr int TextMargin = 1;   ///< the same for text

using Selection = QAbstractTextDocumentLayout::Selection;

/// Underlines that mark problems are painted last, so they stay visible on top of other selections.
bool isUnderlineAlone(const QTextCharFormat& format)
{
    return !format.hasProperty(QTextFormat::ForegroundBrush) &&
           format.hasProperty(QTextFormat::TextUnderlineStyle) &&
           format.background().style() == Qt::NoBrush;
}

/// The part of a selection within a block; length 0 if there is none. The line end counts as one
/// character.
QTextLayout::FormatRange cutToBlock(const Selection& selection, const QTextBlock& block)
{
    QTextLayout::FormatRange range;
    const int start = std::max(selection.cursor.selectionStart() - block.position(), 0);
    const int end = std::min(selection.cursor.selectionEnd() - block.position(), block.length());
    range.start = start;
    range.length = std::max(end - start, 0);
    range.format = selection.format;
    return range;
}

bool hasGlyph(const QTextBlock& block, int column)
{
    const QString text = block.text();
    return column < text.size() && text.at(column) != QLatin1Char('\t');
}

}  // namespace

void CodePainter::paint(const QPaintEvent* event)
{
    m_rect = event->rect();
    m_view = m_editor->q->viewport()->rect();
    m_context = m_editor->paintContext();
    m_cursor = m_editor->q->textCursor();
    m_currentBlock = m_cursor.block();
    m_painter.begin(m_editor->q->viewport());
    // Fixes the phase of wavy underlines. Otherwise the waves do not join when parts of the text
    // are painted separately.
    m_painter.setBrushOrigin(m_editor->contentOffset());
    paintGround();
    paintPlaceholder();
    m_painter.setPen(m_context.palette.text().color());
    paintText();
    m_editor->folds->paintBoxes(&m_painter);
    paintCursor();
    m_editor->folds->paintPreview(&m_painter);
}

/// Paints the whole background, because Qt is configured not to fill it.
void CodePainter::paintGround()
{
    const HighlightBlocks& ranges = m_editor->highlights->blocks();
    if (!m_editor->formatting.paintBlockRanges || ranges.isEmpty()) {
        m_painter.fillRect(m_rect, m_context.palette.base());
        return;
    }
    const QAbstractTextDocumentLayout* layout = m_editor->q->document()->documentLayout();
    const qreal start = m_editor->contentOffset().y();
    qreal top = start;
    qreal bottom = start;
    int depth = 0;
    for (QTextBlock block = visibleFrom(m_editor->firstVisibleBlock());
         block.isValid() && bottom <= m_view.height() + RangeMargin;
         block = visibleFrom(block.next())) {
        const int own = BlockRanges::depth(ranges, block.blockNumber());
        if (own != depth) {
            paintDepth(ranges, depth, top, bottom);
            top = bottom;
            depth = own;
        }
        bottom += layout->blockBoundingRect(block).height();
    }
    paintDepth(ranges, depth, top, bottom);
    const QRegion lines(0, int(start), m_view.width(), int(bottom) - int(start));
    for (const QRect& rest : QRegion(m_rect) - lines) {
        m_painter.fillRect(rest, m_context.palette.base());
    }
}

/// Fills a strip of lines that is inside `depth` nested ranges. Each range is drawn on top of the
/// outer one. Parts that an opaque inner range covers are left out: filling costs more than the
/// text.
void CodePainter::paintDepth(const HighlightBlocks& ranges, int depth, qreal top, qreal bottom)
{
    const QColor own = m_editor->formatting.blockRangeColor;
    const QColor base = own.isValid() ? own : m_editor->q->palette().color(QPalette::Base);
    const QVector<QColor> colors = BlockRanges::colors(base, ranges.count());
    const qreal x = m_editor->contentOffset().x();
    const auto left = [&](int i) { return x + (i > 0 ? ranges.visualIndent.at(i - 1) : 0); };
    const auto right = [&](int i) {
        return std::max<qreal>(m_view.width() - RangeStep * i, left(i));
    };
    for (int i = 0; i <= depth; ++i) {
        const bool isCovered = i < depth && colors.at(i + 1).alpha() == 255;
        const qreal end = isCovered ? std::min(left(i + 1), right(i)) : right(i);
        const qreal start = isCovered ? std::max(right(i + 1), left(i)) : right(i);
        for (const auto& [from, to] : {std::pair(left(i), end), std::pair(start, right(i))}) {
            const QRectF rect =
                QRectF(QPointF(from, top), QPointF(std::max(from, to), bottom)) & m_rect;
            m_painter.fillRect(rect, colors.at(i));
        }
    }
}

void CodePainter::paintPlaceholder()
{
    const CodeEditor* q = m_editor->q;
    if (q->placeholderText().isEmpty() || !q->document()->isEmpty() ||
        !m_editor->firstVisibleBlock().layout()->preeditAreaText().isEmpty()) {
        return;
    }
    const int margin = int(q->document()->documentMargin());
    m_painter.setPen(m_context.palette.placeholderText().color());
    m_painter.drawText(m_view.adjusted(margin, margin, 0, 0), Qt::AlignTop | Qt::TextWordWrap,
                       q->placeholderText());
}

void CodePainter::paintText()
{
    const QAbstractTextDocumentLayout* layout = m_editor->q->document()->documentLayout();
    m_offset = m_editor->contentOffset();
    QTextBlock block = visibleFrom(m_editor->firstVisibleBlock());
    while (block.isValid() && m_offset.y() <= m_view.height() + TextMargin) {
        const qreal height = layout->blockBoundingRect(block).height();
        if (m_offset.y() <= m_rect.bottom() && m_offset.y() + height >= m_rect.top()) {
            paintBlock(block);
        }
        m_offset.ry() += height;
        block = visibleFrom(block.next());
    }
    if (!block.isValid()) {
        paintBelow();
    }
}

void CodePainter::paintBlock(const QTextBlock& block)
{
    QTextLayout* layout = block.layout();
    const QFont font = block.document()->defaultFont();
    if (layout->font() != font) {
        layout->setFont(font);
    }
    paintCurrentLine(block);
    Formats formats = selectionsOf(block);
    const int column = cursorColumn(block);
    const bool isCell = column != NoCursor && isOverwriting();
    const bool isOnGlyph = isCell && hasGlyph(block, column);
    if (isOnGlyph) {
        formats.append(cellFormat(*layout, column));
    }
    layout->draw(&m_painter, m_offset, formats, m_rect);
    if (isCell && !isOnGlyph) {
        paintEmptyCell(block, column);
    } else if (!isCell && column != NoCursor) {
        m_cursorLayout = layout;
        m_cursorOffset = m_offset;
        m_cursorColumn = column;
    }
}

void CodePainter::paintCurrentLine(const QTextBlock& block)
{
    if (!m_editor->formatting.highlightCurrentLine || block != m_currentBlock) {
        return;
    }
    const QTextLine line = block.layout()->lineForTextPosition(m_cursor.positionInBlock());
    m_painter.fillRect(QRectF(0, m_offset.y() + line.y(), m_view.width(), line.height()),
                       m_editor->formatting.currentLineColor);
}

CodePainter::Formats CodePainter::selectionsOf(const QTextBlock& block) const
{
    const bool isLastPriority = m_cursor.hasSelection();
    Formats formats;
    Formats priority;
    for (int i = 0; i < m_context.selections.size(); ++i) {
        const QTextLayout::FormatRange range = cutToBlock(m_context.selections.at(i), block);
        if (range.length == 0) {
            continue;
        }
        const bool isLast = i == m_context.selections.size() - 1;
        const bool isPriority = (isLast && isLastPriority) || isUnderlineAlone(range.format);
        (isPriority ? priority : formats).append(range);
    }
    return formats + priority;
}

/// The cursor's column in the layout. During input method composition Qt encodes the place within
/// the composed text as a number below -1.
int CodePainter::cursorColumn(const QTextBlock& block) const
{
    if (m_editor->q->isReadOnly()) {
        return NoCursor;
    }
    const int position = m_context.cursorPosition;
    const QTextLayout* layout = block.layout();
    if (position < NoCursor && !layout->preeditAreaText().isEmpty()) {
        return layout->preeditAreaPosition() - (position + 2);
    }
    return block.contains(position) ? position - block.position() : NoCursor;
}

bool CodePainter::isOverwriting() const
{
    return m_editor->q->overwriteMode() && m_context.cursorPosition >= 0;
}

QTextLayout::FormatRange CodePainter::cellFormat(const QTextLayout& layout, int column) const
{
    QTextLayout::FormatRange range;
    range.start = column;
    range.length = layout.nextCursorPosition(column) - column;
    range.format.setForeground(m_context.palette.base());
    range.format.setBackground(m_context.palette.text());
    return range;
}

/// Draws the block cursor where there is no glyph: as wide as a space at the end of a line; on a
/// tab at most that wide, at the tab's right end.
void CodePainter::paintEmptyCell(const QTextBlock& block, int column)
{
    const QTextLayout* layout = block.layout();
    const QTextLine line = layout->lineForTextPosition(column);
    qreal width = QFontMetricsF(layout->font()).horizontalAdvance(QLatin1Char(' '));
    qreal left = line.cursorToX(column);
    if (column < block.length() - 1) {
        const qreal other = line.cursorToX(column + 1);
        width = std::min(width, std::abs(other - left));
        left = std::max(left, other) - width;
    } else if (block.textDirection() == Qt::RightToLeft) {
        left -= width;
    }
    m_painter.fillRect(QRectF(m_offset.x() + left, m_offset.y() + line.y(), width, line.height()),
                       m_context.palette.text());
}

void CodePainter::paintCursor()
{
    if (m_cursorLayout) {
        m_painter.setPen(m_context.palette.text().color());
        m_cursorLayout->drawCursor(&m_painter, m_cursorOffset, m_cursorColumn,
                                   m_editor->q->cursorWidth());
    }
}

void CodePainter::paintBelow()
{
    const CodeEditor* q = m_editor->q;
    const QScrollBar* bar = q->verticalScrollBar();
    const int top = int(m_offset.y());
    if (q->backgroundVisible() && top <= m_rect.bottom() &&
        (q->centerOnScroll() || bar->maximum() == bar->minimum())) {
        m_painter.fillRect(QRect(QPoint(m_rect.left(), top), m_rect.bottomRight()),
                           m_context.palette.window());
    }
}

}  // namespace Zorv
