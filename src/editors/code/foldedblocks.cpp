#include "editors/code/foldedblocks_p.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codeeditorextraarea_p.h"
#include "editors/code/codefolding_p.h"
#include "editors/code/visibleblocks_p.h"

#include <QAbstractTextDocumentLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextLayout>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

// How folds survive edits: an edit can remove the head of hidden lines or change their levels, and
// nobody could unfold them any more. While Qt is still in the middle of an edit the layout must not
// be touched. So edited() and levelsChanged() only record the affected lines. mend() runs when Qt
// has finished, or from a timer for level changes outside of an edit, and checks the folds of the
// recorded lines.

namespace Zorv {

namespace {

constexpr int PreviewDelay = 40;
constexpr qreal BoxDistance = 12;
constexpr qreal Radius = 2;
const QPointF HalfPixel(0.5, 0.5);

/// Makes a hidden line visible for a moment, to measure and draw it. The layout's signals are
/// blocked: views would adjust their scroll bars for lines that are not really there.
class Glimpse
{
public:
    explicit Glimpse(const QTextBlock& block)
        : m_block(block), m_blocker(block.document()->documentLayout())
    {
        m_block.setVisible(true);
    }
    ~Glimpse()
    {
        m_block.setVisible(false);
        m_block.setLineCount(0);
    }
    Q_DISABLE_COPY(Glimpse)

    QRectF rect() const { return m_block.document()->documentLayout()->blockBoundingRect(m_block); }

private:
    QTextBlock m_block;
    QSignalBlocker m_blocker;
};

qreal naturalWidth(const QTextBlock& block)
{
    const QTextLayout* layout = block.layout();
    qreal width = 0;
    for (int i = 0; i < layout->lineCount(); ++i) {
        width = std::max(width, layout->lineAt(i).naturalTextWidth());
    }
    return width;
}

QRectF boxBehind(const QTextBlock& block, const QPointF& origin, qreal width)
{
    const QTextLayout* layout = block.layout();
    if (layout->lineCount() == 0) {
        return {};
    }
    const QRectF line =
        layout->lineAt(layout->lineCount() - 1).naturalTextRect().translated(origin);
    return {line.left() + line.width() - 1 + BoxDistance, line.top(), width, line.height() - 1};
}

}  // namespace

FoldedBlocks::FoldedBlocks(CodeEditorPrivate* editor) : QObject(editor), m_editor(editor) {}

template <class Visit>
void FoldedBlocks::visitBoxes(Visit visit) const
{
    const CodeEditor* q = m_editor->q;
    const QAbstractTextDocumentLayout* layout = q->document()->documentLayout();
    const qreal width = QFontMetricsF(q->font()).horizontalAdvance(QStringLiteral(" ... "));
    QTextBlock block = visibleFrom(m_editor->firstVisibleBlock());
    QPointF origin = m_editor->blockRect(block).topLeft();
    while (block.isValid() && origin.y() <= q->viewport()->height()) {
        const qreal height = layout->blockBoundingRect(block).height();
        if (CodeFolding::hides(block) && visit(block, boxBehind(block, origin, width))) {
            return;
        }
        origin.ry() += height;
        block = visibleFrom(block.next());
    }
}

QTextBlock FoldedBlocks::blockAt(const QPoint& place, QRect* box) const
{
    QTextBlock found;
    visitBoxes([&](const QTextBlock& block, const QRectF& rect) {
        if (!rect.contains(place)) {
            return false;
        }
        found = block;
        if (box) {
            *box = rect.toAlignedRect();
        }
        return true;
    });
    return found;
}

void FoldedBlocks::paintBoxes(QPainter* painter) const
{
    const QTextCursor cursor = m_editor->q->textCursor();
    const QPalette palette = m_editor->q->palette();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(HalfPixel);
    visitBoxes([&](const QTextBlock& block, const QRectF& box) {
        const int hidden = block.next().position();
        const bool isSelected = cursor.hasSelection() && cursor.selectionStart() <= hidden &&
                                cursor.selectionEnd() > hidden;
        painter->setPen(Qt::gray);
        painter->setBrush(isSelected ? palette.highlight() : QBrush());
        painter->drawRoundedRect(box, Radius, Radius);
        if (isSelected) {
            painter->setPen(palette.color(QPalette::HighlightedText));
        }
        painter->drawText(box, Qt::AlignCenter, QStringLiteral("..."));
        return false;
    });
    painter->restore();
}

/// The area for the hidden lines from `first` on, down to the bottom of the viewport.
QRectF FoldedBlocks::previewRect(const QTextBlock& first) const
{
    const QRectF head = m_editor->blockRect(first.previous());
    QRectF rect(m_editor->contentOffset().x(), head.bottom() + 1, 0, 0);
    const int end = m_editor->q->viewport()->height();
    for (QTextBlock b = first; b.isValid() && !b.isVisible() && rect.bottom() <= end;
         b = b.next()) {
        const Glimpse glimpse(b);
        rect.setHeight(rect.height() + glimpse.rect().height());
        rect.setWidth(std::max(rect.width(), naturalWidth(b)));
    }
    rect.setWidth(rect.width() + 2 * first.document()->documentMargin());
    return rect;
}

void FoldedBlocks::paintPreview(QPainter* painter) const
{
    const CodeEditor* q = m_editor->q;
    const QTextBlock first = q->document()->findBlockByNumber(m_visibleBlock);
    if (m_visibleBlock < 1 || !first.isValid() || first.isVisible() ||
        !first.previous().isVisible()) {
        return;
    }
    const QRectF rect = previewRect(first);
    painter->save();
    painter->translate(HalfPixel);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::gray);
    painter->setBrush(q->palette().base());
    painter->drawRoundedRect(rect, Radius, Radius);
    painter->restore();
    painter->save();
    painter->setPen(q->palette().color(QPalette::Text));
    QPointF place = rect.topLeft();
    for (QTextBlock b = first; b.isValid() && !b.isVisible() && place.y() < rect.bottom();
         b = b.next()) {
        const Glimpse glimpse(b);
        const qreal height = glimpse.rect().height();
        b.layout()->draw(painter, place);
        place.ry() += height;
    }
    painter->restore();
}

void FoldedBlocks::clearPreview()
{
    m_suggestedBlock = -1;
    m_previewTimer.stop();
    if (m_visibleBlock >= 0) {
        m_visibleBlock = -1;
        m_editor->q->viewport()->update();
    }
}

void FoldedBlocks::mouseMoved(QMouseEvent* event)
{
    const QTextBlock block = blockAt(event->pos());
    const int number = block.isValid() ? block.next().blockNumber() : -1;
    if (number < 0) {
        clearPreview();
    } else if (number != m_visibleBlock) {
        m_suggestedBlock = number;
        m_previewTimer.start(PreviewDelay, this);
    }
    m_isMouseOnBox = number >= 0;
    const Qt::CursorShape shape = m_isMouseOnBox ? Qt::PointingHandCursor : Qt::IBeamCursor;
    QWidget* viewport = m_editor->q->viewport();
    if (viewport->cursor().shape() != shape) {
        viewport->setCursor(shape);
    }
}

void FoldedBlocks::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_previewTimer.timerId()) {
        m_previewTimer.stop();
        m_visibleBlock = std::exchange(m_suggestedBlock, -1);
        m_editor->q->viewport()->update();
    } else if (event->timerId() == m_mendTimer.timerId()) {
        mend();
    } else {
        QObject::timerEvent(event);
    }
}

void FoldedBlocks::mousePressed(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const QTextBlock block = blockAt(event->pos());
        if (block.isValid()) {
            clearPreview();
            m_editor->q->toggleBlockVisible(block);
        }
    }
}

void FoldedBlocks::follow(CodeDocument* document)
{
    if (m_document) {
        m_document->disconnect(this);
    }
    clearPreview();
    m_mendTimer.stop();
    m_stale = {};
    m_document = document;
    if (!document) {
        return;
    }
    m_blockCount = document->blockCount();
    connect(document, &QTextDocument::contentsChange, this, &FoldedBlocks::edited);
    // Qt emits contentsChanged when it has finished the edit, layout included.
    connect(document, &QTextDocument::contentsChanged, this, &FoldedBlocks::mend);
    connect(document, &CodeDocument::levelsChanged, this, &FoldedBlocks::levelsChanged);
    // The document may have been edited while no editor showed it.
    const bool hasFolds = document->lineCount() != document->blockCount();
    if (hasFolds || m_editor->q->lineWrapMode() != QPlainTextEdit::NoWrap) {
        levelsChanged(0, document->blockCount() - 1, -1);
        mend();
    }
}

/// Text that is joined to a folded line is unfolded, because the user sees that line change. The
/// fold stays if a separate line above it was removed.
void FoldedBlocks::edited(int from, int removed, int added)
{
    Q_UNUSED(removed)
    clearPreview();
    const int count = m_document->blockCount();
    if (count < std::exchange(m_blockCount, count)) {
        const int end = std::min(from + added, m_document->characterCount() - 1);
        const QTextBlock block = m_document->findBlock(end);
        if (block.isVisible() && end > block.position()) {
            m_stale.joined = block.blockNumber();
        }
    }
}

void FoldedBlocks::levelsChanged(int first, int last, int above)
{
    m_stale.first = m_stale.last < 0 ? first : std::min(m_stale.first, first);
    m_stale.last = std::max(m_stale.last, last);
    m_stale.above = above;
    m_mendTimer.start(0, this);
}

void FoldedBlocks::mend()
{
    m_mendTimer.stop();
    if (m_stale.isEmpty()) {
        return;
    }
    const Stale stale = std::exchange(m_stale, {});
    // The first line has no head above it, so nothing could unfold it.
    bool isMended = CodeFolding::reveal(m_document->begin());
    if (stale.joined >= 0) {
        isMended |= CodeFolding::unfold(m_document->findBlockByNumber(stale.joined));
    }
    for (const auto& [first, last] :
         {std::pair(stale.above, stale.above), std::pair(stale.first, stale.last)}) {
        QTextBlock block = m_document->findBlockByNumber(std::max(first, 0));
        // A fold that starts further up may extend to here.
        const QTextBlock above = CodeFolding::visibleAbove(block);
        for (block = above.isValid() ? above : visibleFrom(block);
             block.isValid() && block.blockNumber() <= last; block = visibleFrom(block.next())) {
            isMended |= CodeFolding::mend(block);
        }
    }
    if (isMended) {
        m_editor->updateLayout();
    }
    // Fold markers depend on the levels.
    m_editor->extraArea->updateLines(m_document->findBlockByNumber(stale.above),
                                     m_document->findBlockByNumber(stale.last));
}

}  // namespace Zorv
