#include "editors/code/codeeditorextraarea_p.h"

#include "code/codedoc/codeblockdata.h"
#include "editors/code/codeeditor_p.h"
#include "editors/code/codefolding_p.h"
#include "editors/code/codehighlights_p.h"
#include "editors/code/heldview_p.h"
#include "editors/code/plaintooltip_p.h"
#include "editors/code/visibleblocks_p.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QStyle>
#include <QTextDocument>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>

namespace Zorv {

namespace {

/// At most as wide as a text cursor.
constexpr int NarrowWidth = 4;

QIcon icon(const char* name)
{
    return QIcon(QStringLiteral(":/zorvl_icons/icons/%1.png").arg(QLatin1String(name)));
}

/// The start of the next visible line, so that a folded line includes its hidden lines; after the
/// last line, the end of the text.
int startBehind(const QTextBlock& block)
{
    const QTextBlock next = visibleFrom(block.next());
    return next.isValid() ? next.position() : block.position() + block.length() - 1;
}

}  // namespace

CodeEditorExtraArea::CodeEditorExtraArea(CodeEditorPrivate* editor)
    : QWidget(editor->q), m_editor(editor), m_markIcons{icon("error"), icon("warn"), icon("info")},
      m_contractIcon(icon("contract")), m_expandIcon(icon("expand"))
{
    setAutoFillBackground(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setAccessibleName(tr("Line numbers, marks and folds"));
    connect(editor->q, &QPlainTextEdit::blockCountChanged, this, &CodeEditorExtraArea::updateWidth);
    connect(editor->q, &QPlainTextEdit::updateRequest, this, &CodeEditorExtraArea::scrollWithText);
    connect(editor->q, &QPlainTextEdit::selectionChanged, this, [this] { update(); });
}

int CodeEditorExtraArea::neededWidth(int* markWidth) const
{
    const CodeEditor::SyntaxFormatting& formatting = m_editor->formatting;
    const QFontMetrics metrics(m_editor->q->font());
    const int line = metrics.lineSpacing();
    const int digits = std::max(2, QString::number(m_editor->q->blockCount()).size());
    int width = formatting.lineNumbers ? digits * metrics.horizontalAdvance(u'9') + 4 : 4;
    width += formatting.markArea ? line : 2;
    if (markWidth) {
        *markWidth = formatting.markArea ? line : 0;
    }
    return width + foldWidth();
}

int CodeEditorExtraArea::foldWidth() const
{
    const int line = QFontMetrics(m_editor->q->font()).lineSpacing();
    return m_editor->formatting.foldingMarkers ? line + 1 + line % 2 : 0;
}

void CodeEditorExtraArea::updateWidth()
{
    const int width = neededWidth();
    const bool isRightToLeft = m_editor->q->isRightToLeft();
    m_editor->setMargins(isRightToLeft ? 0 : width, isRightToLeft ? width : 0);
    place();
}

void CodeEditorExtraArea::place()
{
    const CodeEditor* q = m_editor->q;
    const QRect area = q->rect();
    const QRect own(area.left(), area.top(), neededWidth(), area.height());
    setGeometry(QStyle::visualRect(q->layoutDirection(), area, own));
}

QSize CodeEditorExtraArea::sizeHint() const
{
    return {neededWidth(), 0};
}

void CodeEditorExtraArea::updateLines(const QTextBlock& first, const QTextBlock& last)
{
    const int top = first.isValid() ? int(m_editor->blockRect(first).top()) : 0;
    const int bottom = last.isValid() ? int(m_editor->blockRect(last).bottom()) : height();
    update(0, top, width(), bottom - top + 1);
}

/// True if only the blinking text cursor is repainted. Qt adds some pixels on each side, for the
/// writing direction marks.
bool CodeEditorExtraArea::isCursor(const QRect& rect) const
{
    return m_editor->q->cursorRect().adjusted(-6, -2, 6, 2).contains(rect);
}

void CodeEditorExtraArea::scrollWithText(const QRect& rect, int dy)
{
    if (dy != 0) {
        scroll(0, dy);
    } else if (rect.width() > NarrowWidth && !isCursor(rect)) {
        update(0, rect.y(), width(), rect.height());
    }
    if (rect.contains(m_editor->q->viewport()->rect())) {
        updateWidth();
    }
}

void CodeEditorExtraArea::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Line numbers, marks and folds"));
    } else if (event->type() == QEvent::FontChange ||
               event->type() == QEvent::LayoutDirectionChange) {
        updateWidth();
    }
}

bool CodeEditorExtraArea::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    showTip(help->pos(), help->globalPos());
    return true;
}

void CodeEditorExtraArea::showTip(const QPoint& place, const QPoint& globalPlace)
{
    int markWidth = 0;
    neededWidth(&markWidth);
    const CodeBlockData* line = CodeBlockData::testBlockData(cursorAt(place.y()).block());
    QStringList texts;
    if (line && place.x() < markWidth) {
        for (const CodeBlockData::SyntaxMessage& message : line->syntaxMessages()) {
            texts.append(message.text);
        }
    }
    PlainToolTip::show(globalPlace, texts.join(QLatin1Char('\n')), this);
}

void CodeEditorExtraArea::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    endDrag();
}

/// Unless a button is down, leaving the widget also leaves the folding column.
void CodeEditorExtraArea::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    if (m_selectionAnchorLine < 0) {
        moved(QPoint(0, 0));
    }
}

void CodeEditorExtraArea::wheelEvent(QWheelEvent* event)
{
    QCoreApplication::sendEvent(m_editor->q->viewport(), event);
}

void CodeEditorExtraArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const HeldView view(m_editor->q);
        pressed(event->pos());
    }
}

void CodeEditorExtraArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void CodeEditorExtraArea::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) {
        moved(event->pos());
    }
    int markWidth = 0;
    neededWidth(&markWidth);
    setCursor(event->pos().x() <= markWidth ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (event->buttons() & Qt::LeftButton) {
        dragTo(event->pos().y());
    }
}

void CodeEditorExtraArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        endDrag();
    }
}

void CodeEditorExtraArea::endDrag()
{
    m_autoScrollTimer.stop();
    m_selectionAnchorLine = -1;
}

QTextCursor CodeEditorExtraArea::cursorAt(int y) const
{
    return m_editor->q->cursorForPosition(QPoint(0, y));
}

bool CodeEditorExtraArea::isInFoldColumn(int x) const
{
    return m_editor->formatting.foldingMarkers && x > width() - (foldWidth() - 1);
}

QRect CodeEditorExtraArea::foldBox() const
{
    const HighlightBlocks& ranges = m_editor->highlights->blocks();
    if (ranges.isEmpty() || m_editor->highlights->blockNumber() < 0) {
        return {};
    }
    const QTextDocument* document = m_editor->q->document();
    const QTextBlock first = document->findBlockByNumber(ranges.open.last());
    const QTextBlock last = document->findBlockByNumber(ranges.close.first());
    if (!first.isValid() || !last.isValid()) {
        return {};
    }
    const int top = int(m_editor->blockRect(first).top());
    const int bottom = int(m_editor->blockRect(last).bottom());
    return {width() - foldWidth(), top, foldWidth(), bottom - top};
}

/// Shows the ranges of the line under the mouse while it is on the folding column.
void CodeEditorExtraArea::moved(const QPoint& place)
{
    if (!m_editor->formatting.foldingMarkers) {
        return;
    }
    CodeHighlights* highlights = m_editor->highlights;
    int number =
        m_editor->formatting.highlightBlocks ? m_editor->q->textCursor().blockNumber() : -1;
    if (isInFoldColumn(place.x())) {
        number = cursorAt(place.y()).blockNumber();
    }
    if (number != highlights->blockNumber()) {
        highlights->setBlockNumber(number, highlights->blocks().isEmpty() ? 120 : 0);
    }
}

void CodeEditorExtraArea::pressed(const QPoint& place)
{
    int markWidth = 0;
    neededWidth(&markWidth);
    if (isInFoldColumn(place.x())) {
        toggleFold(place);
        return;
    }
    const QTextBlock block = cursorAt(place.y()).block();
    if (m_editor->formatting.lineNumbers && place.x() > markWidth) {
        m_selectionAnchorLine = block.blockNumber();
        QTextCursor cursor(block);
        cursor.setPosition(startBehind(block), QTextCursor::KeepAnchor);
        m_editor->q->setTextCursor(cursor);
        return;
    }
    m_markedLine = block.blockNumber();
    if (m_editor->formatting.markArea && place.x() <= markWidth) {
        emit m_editor->q->markClicked(m_markedLine);
    }
}

void CodeEditorExtraArea::toggleFold(const QPoint& place)
{
    const QTextBlock block = cursorAt(place.y()).block();
    if (CodeFolding::hides(block)) {
        m_editor->q->toggleBlockVisible(block);
    } else {
        // A quick user clicks before the ranges are shown.
        m_editor->highlights->showRangesOf(block.blockNumber());
        if (foldBox().contains(place)) {
            const int head = m_editor->highlights->blocks().open.last();
            m_editor->q->toggleBlockVisible(m_editor->q->document()->findBlockByNumber(head));
        }
    }
    m_editor->q->moveCursorVisible(false);
}

/// Selects whole lines, from the pressed one to the one at `y`.
void CodeEditorExtraArea::dragTo(int y)
{
    if (m_selectionAnchorLine < 0) {
        return;
    }
    const QTextDocument* document = m_editor->q->document();
    const QTextBlock pressed = document->findBlockByNumber(m_selectionAnchorLine);
    const QTextBlock anchor = pressed.isValid() ? pressed : document->lastBlock();
    const QTextBlock end = cursorAt(y).block();
    const bool isUpward = end.blockNumber() < anchor.blockNumber();
    QTextCursor cursor(anchor);
    cursor.setPosition(isUpward ? startBehind(anchor) : anchor.position());
    cursor.setPosition(isUpward ? end.position() : startBehind(end), QTextCursor::KeepAnchor);
    const bool isInside = y >= 0 && y <= height();
    const HeldView view(isInside ? m_editor->q : nullptr);
    if (isInside) {
        m_autoScrollTimer.stop();
    } else if (!m_autoScrollTimer.isActive()) {
        m_autoScrollTimer.start(100, this);
    }
    m_editor->q->setTextCursor(cursor);
}

/// Scrolls faster the farther the mouse is outside.
void CodeEditorExtraArea::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_autoScrollTimer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    const QPoint globalPlace = QCursor::pos();
    const QPoint place = mapFromGlobal(globalPlace);
    m_editor->q->verticalScrollBar()->triggerAction(place.y() < height() / 2
                                                        ? QAbstractSlider::SliderSingleStepSub
                                                        : QAbstractSlider::SliderSingleStepAdd);
    QMouseEvent move(QEvent::MouseMove, place, globalPlace, Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    mouseMoveEvent(&move);
    if (m_autoScrollTimer.isActive()) {
        const qint64 delta = std::max(place.y(), height() - place.y()) - height() - 1;
        m_autoScrollTimer.start(delta > 6 ? int(4900 / (delta * delta)) : 4900 / 49, this);
    }
}

}  // namespace Zorv
