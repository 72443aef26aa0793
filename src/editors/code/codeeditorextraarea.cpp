#include "editors/code/codeeditorextraarea_p.h"

#include "editors/code/codeeditor_p.h"

#include <QCoreApplication>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

namespace Zorv {

CodeEditorExtraArea::CodeEditorExtraArea(CodeEditorPrivate* editor)
    : QWidget(editor->q), m_editor(editor)
{
    setAutoFillBackground(true);
    setMouseTracking(true);
    connect(editor->q, &QPlainTextEdit::blockCountChanged, this, &CodeEditorExtraArea::updateWidth);
    connect(editor->q, &QPlainTextEdit::updateRequest, this, &CodeEditorExtraArea::scrollWithText);
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
    return formatting.foldingMarkers ? width + line + 1 + line % 2 : width;
}

void CodeEditorExtraArea::updateWidth()
{
    const int width = neededWidth();
    const bool isRightToLeft = m_editor->q->isRightToLeft();
    m_editor->setMargins(isRightToLeft ? 0 : width, isRightToLeft ? width : 0);
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

void CodeEditorExtraArea::scrollWithText(const QRect& rect, int dy)
{
    if (dy != 0) {
        scroll(0, dy);
    } else if (rect.width() > 4) {
        update(0, rect.y(), width(), rect.height());
    }
    if (rect.contains(m_editor->q->viewport()->rect())) {
        updateWidth();
    }
}

void CodeEditorExtraArea::paintEvent(QPaintEvent*) {}

void CodeEditorExtraArea::mousePressEvent(QMouseEvent* event)
{
    handleMouse(event);
}

void CodeEditorExtraArea::mouseMoveEvent(QMouseEvent* event)
{
    handleMouse(event);
}

void CodeEditorExtraArea::mouseReleaseEvent(QMouseEvent* event)
{
    handleMouse(event);
}

void CodeEditorExtraArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    handleMouse(event);
}

void CodeEditorExtraArea::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
}

void CodeEditorExtraArea::wheelEvent(QWheelEvent* event)
{
    QCoreApplication::sendEvent(m_editor->q->viewport(), event);
}

void CodeEditorExtraArea::handleMouse(QMouseEvent*) {}

}  // namespace Zorv
