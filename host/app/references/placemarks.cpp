#include "app/references/placemarks.h"

#include <zorv/editors/code/codeeditor.h>

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace App {

PlaceMarks::PlaceMarks(Zorv::CodeEditor* editor) : QWidget(editor->viewport()), m_editor(editor)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("place_marks"));
    editor->viewport()->installEventFilter(this);
    const auto follow = [this] { update(); };
    connect(editor, &QPlainTextEdit::updateRequest, this, follow);
    connect(editor->horizontalScrollBar(), &QScrollBar::valueChanged, this, follow);
    hide();
}

void PlaceMarks::setPlaces(const QVector<QTextCursor>& places)
{
    m_places = places;
    setGeometry(m_editor->viewport()->rect());
    setVisible(!places.isEmpty());
    update();
}

bool PlaceMarks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        setGeometry(m_editor->viewport()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

QRect PlaceMarks::frameOf(const QTextCursor& place) const
{
    QTextCursor end = place;
    end.setPosition(place.selectionStart());
    const QRect first = m_editor->cursorRect(end);
    end.setPosition(place.selectionEnd());
    const QRect last = m_editor->cursorRect(end);
    // A word that continues in the next visual row is marked to the right edge.
    const int right = first.top() == last.top() ? last.left() : width();
    return QRect(QPoint(first.left() - 1, first.top()), QPoint(right, first.bottom()));
}

/// Measures only visible places: there can be many thousand.
void PlaceMarks::paintEvent(QPaintEvent*)
{
    const int first = m_editor->cursorForPosition({0, 0}).position();
    const QTextCursor bottom = m_editor->cursorForPosition({width(), height()});
    const int last = bottom.block().position() + bottom.block().length();
    QPainter painter(this);
    QColor color = palette().color(QPalette::Link);
    painter.setPen(color);
    color.setAlpha(40);
    painter.setBrush(color);
    for (const QTextCursor& place : qAsConst(m_places)) {
        const bool isHere = place.document() == m_editor->document() && place.hasSelection() &&
                            place.block().isVisible();
        if (isHere && place.selectionEnd() >= first && place.selectionStart() <= last) {
            painter.drawRect(frameOf(place));
        }
    }
}

}  // namespace App
