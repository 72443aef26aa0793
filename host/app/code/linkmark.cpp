#include "app/code/linkmark.h"

#include <zorv/editors/code/codeeditor.h>

#include <QPainter>
#include <QTextBlock>
#include <algorithm>

namespace App {

LinkMark::LinkMark(Zorv::CodeEditor* editor) : QWidget(editor->viewport()), m_editor(editor)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("link_mark"));
    hide();
}

void LinkMark::showBelow(int line, int start, int end)
{
    const QTextBlock block = m_editor->document()->findBlockByNumber(line);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + start);
    const QRect first = m_editor->cursorRect(cursor);
    cursor.setPosition(block.position() + end);
    const QRect last = m_editor->cursorRect(cursor);
    const int left = std::min(first.left(), last.left());
    // A word that continues in the next visual row is underlined to the right edge.
    const int right = first.top() == last.top() ? std::max(first.left(), last.left())
                                                : m_editor->viewport()->width();
    const int thickness = std::max(1, m_editor->fontMetrics().lineWidth());
    setGeometry(left, first.bottom() - thickness + 1, right - left, thickness);
    show();
    m_editor->viewport()->setCursor(Qt::PointingHandCursor);
}

void LinkMark::clear()
{
    if (isVisible()) {
        hide();
        m_editor->viewport()->setCursor(Qt::IBeamCursor);
    }
}

void LinkMark::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), m_editor->palette().color(QPalette::Link));
}

}  // namespace App
