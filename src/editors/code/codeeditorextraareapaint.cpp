#include "code/codedoc/codeblockdata.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codeeditorextraarea_p.h"
#include "editors/code/codefolding_p.h"
#include "editors/code/codehighlights_p.h"
#include "editors/code/visibleblocks_p.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>

namespace Zorv {

namespace {

/// Most severe first.
constexpr CodeBlockData::SyntaxMessage::Type MarkOrder[] = {
    CodeBlockData::SyntaxMessage::Error, CodeBlockData::SyntaxMessage::Deprecated,
    CodeBlockData::SyntaxMessage::Warning};

/// Blends a colour with alpha 100 onto an opaque background. Qt draws opaque characters
/// faster.
QColor faded(const QColor& color, const QColor& ground)
{
    const auto mixed = [](int top, int below) { return (top * 100 + below * 155) / 255; };
    return QColor(mixed(color.red(), ground.red()), mixed(color.green(), ground.green()),
                  mixed(color.blue(), ground.blue()));
}

}  // namespace

QColor CodeEditorExtraArea::ground() const
{
    return palette().color(QPalette::Base).darker(115);
}

void CodeEditorExtraArea::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    m_numbers.setFont(m_editor->q->font());
    const int foldX = width() - foldWidth();
    const QRect numbers(0, 0, foldX, height());
    const QRect folds(foldX, 0, width() - foldX, height());
    painter.fillRect(event->rect() & numbers, ground());
    painter.fillRect(event->rect() & folds, palette().color(QPalette::Base));
    const QAbstractTextDocumentLayout* layout = m_editor->q->document()->documentLayout();
    QTextBlock block = visibleFrom(m_editor->firstVisibleBlock());
    qreal top = m_editor->blockRect(block).top();
    while (block.isValid() && top <= event->rect().bottom()) {
        const qreal bottom = top + layout->blockBoundingRect(block).height();
        if (bottom >= event->rect().top()) {
            paintLine(&painter, block, QRect(0, int(top), width(), int(bottom) - int(top)));
        }
        top = bottom;
        block = visibleFrom(block.next());
    }
}

void CodeEditorExtraArea::paintLine(QPainter* painter, const QTextBlock& block,
                                    const QRect& strip) const
{
    const CodeEditor::SyntaxFormatting& formatting = m_editor->formatting;
    if (formatting.foldingMarkers) {
        paintRange(painter, block, strip);
        paintFoldMarker(painter, block, strip);
    }
    if (formatting.markArea) {
        paintMark(painter, block, strip);
    }
    if (formatting.lineNumbers) {
        paintNumber(painter, block, strip);
    }
}

void CodeEditorExtraArea::paintRange(QPainter* painter, const QTextBlock& block,
                                     const QRect& strip) const
{
    const HighlightBlocks& ranges = m_editor->highlights->blocks();
    const int number = block.blockNumber();
    if (ranges.isEmpty() || number < ranges.open.last() || number > ranges.close.first()) {
        return;
    }
    const int half = foldWidth() / 2;
    const int x = width() - foldWidth() - 1 + half;
    const bool isFirst = number == ranges.open.last();
    const QTextBlock last = block.document()->findBlockByNumber(ranges.close.first());
    const bool isLast = block == last || (isFirst && !last.isVisible());
    const int top = strip.top() + (isFirst ? half : 0);
    const int bottom = strip.bottom() - (isLast ? half : 0);
    painter->setPen(Qt::gray);
    painter->drawLine(x, top, x, bottom);
    if (isLast) {
        painter->drawLine(x, bottom, x + foldWidth() / 4, bottom);
    }
}

void CodeEditorExtraArea::paintFoldMarker(QPainter* painter, const QTextBlock& block,
                                          const QRect& strip) const
{
    if (!CodeBlockData::testBlockData(block.next()) ||
        CodeFolding::indent(block.next()) <= CodeFolding::indent(block)) {
        return;
    }
    const int quarter = foldWidth() / 4;
    const int side = std::max(2 * quarter, 9);
    QRect marker(width() - foldWidth() + quarter, strip.top() + quarter, side, side);
    if (style()->inherits("QGtkStyle")) {
        marker.translate(-2, 0);
    } else if (style()->inherits("QMacStyle")) {
        marker.translate(-1, 0);
    }
    (CodeFolding::hides(block) ? m_expandIcon : m_contractIcon).paint(painter, marker);
}

void CodeEditorExtraArea::paintMark(QPainter* painter, const QTextBlock& block,
                                    const QRect& strip) const
{
    const CodeBlockData* line = CodeBlockData::testBlockData(block);
    if (!line || line->syntaxMessages().isEmpty()) {
        return;
    }
    const auto& messages = line->syntaxMessages();
    const auto worst = std::find_if(std::begin(MarkOrder), std::end(MarkOrder), [&](auto type) {
        return std::any_of(messages.begin(), messages.end(),
                           [type](const auto& message) { return message.type == type; });
    });
    int side = 0;
    neededWidth(&side);
    m_markIcons.at(std::size_t(*worst)).paint(painter, QRect(0, strip.top(), side, side));
}

void CodeEditorExtraArea::paintNumber(QPainter* painter, const QTextBlock& block,
                                      const QRect& strip) const
{
    const QColor strong = palette().color(QPalette::WindowText);
    painter->setPen(isStrong(block) ? strong : faded(strong, ground()));
    const int right = width() - foldWidth() - 4;
    m_numbers.draw(painter, QPointF(right, strip.top()), block.blockNumber() + 1);
}

/// True for the cursor's line and for lines that the selection touches.
bool CodeEditorExtraArea::isStrong(const QTextBlock& block) const
{
    const QTextCursor cursor = m_editor->q->textCursor();
    const int end = block.position() + block.length();
    return block == cursor.block() ||
           (cursor.selectionStart() < end && cursor.selectionEnd() > block.position());
}

}  // namespace Zorv
