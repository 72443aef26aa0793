#include "app/codeedit.h"

#include "app/look/codefont.h"
#include "app/look/language.h"
#include "app/look/theme.h"
#include "code/codedoc/codeblockdata.h"
#include "family/familydocument.h"

#include <QHelpEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QToolTip>

#include <algorithm>

namespace App {

using Zorv::CodeBlockData;
using Zorv::CodeDocument;

namespace {

constexpr int TabWidth = 4;

}  // namespace

CodeEdit::CodeEdit(Family::FamilyDocument* document, QWidget* parent)
    : QPlainTextEdit(parent), m_document(document)
{
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setDocument(document);
    applyFont();
    followLanguage(this, [this] { setAccessibleName(tr("Text of %1").arg(m_document->title())); });
    m_length = document->characterCount();
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEdit::markCurrentLine);
    connect(document, &QTextDocument::contentsChange, this, &CodeEdit::keepPlace);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!m_isRestoring) {
            m_place = place();
        }
    });
    markCurrentLine();
}

void CodeEdit::reconfig()
{
    applyFont();
    markCurrentLine();
}

void CodeEdit::goTo(int line, int column, int length)
{
    QTextBlock block = document()->findBlockByNumber(std::max(line, 0));
    if (!block.isValid()) {
        block = document()->lastBlock();
    }
    const int last = block.length() - 1;
    const int start = std::min(std::max(column, 0), last);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + start);
    cursor.setPosition(block.position() + std::min(start + length, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    centerCursor();
}

TextPlace CodeEdit::place() const
{
    const QTextCursor cursor = textCursor();
    return {cursor.blockNumber(), cursor.positionInBlock(), firstVisibleBlock().blockNumber()};
}

void CodeEdit::setPlace(const TextPlace& place)
{
    goTo(place.line, place.column);
    verticalScrollBar()->setValue(place.topLine);
    ensureCursorVisible();
}

QString CodeEdit::problemsAt(const QPoint& position) const
{
    const QTextCursor cursor = cursorForPosition(position);
    const CodeBlockData* line = CodeBlockData::testBlockData(cursor.block());
    if (!line || !cursorRect(cursor)
                      .adjusted(-width(), 0, fontMetrics().averageCharWidth(), 0)
                      .contains(position)) {
        return {};
    }
    QStringList texts;
    const int column = cursor.positionInBlock();
    for (const CodeBlockData::SyntaxMessage& message : line->syntaxMessages()) {
        if (message.start <= column && column <= message.end) {
            texts.append(message.text);
        }
    }
    return texts.join(QLatin1Char('\n'));
}

bool CodeEdit::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QPlainTextEdit::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    // A text of the file in a message is no markup.
    const QString text = problemsAt(help->pos()).toHtmlEscaped();
    QToolTip::showText(
        help->globalPos(),
        text.isEmpty() ? text : QLatin1String("<qt>") + text + QLatin1String("</qt>"), viewport());
    return true;
}

void CodeEdit::keyPressEvent(QKeyEvent* event)
{
    // Qt would write U+2028, which ends no line of the file.
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

QMimeData* CodeEdit::createMimeDataFromSelection() const
{
    // Qt's own would turn non-breaking blanks into plain ones.
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    auto* mime = new QMimeData;
    mime->setText(text);
    return mime;
}

void CodeEdit::applyFont()
{
    setFont(codeFont());
    // That of the widget is made for the screen.
    m_document->setDefaultFont(font());
    setTabStopDistance(TabWidth * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
}

void CodeEdit::markCurrentLine()
{
    QTextEdit::ExtraSelection line;
    line.cursor = textCursor();
    line.cursor.clearSelection();
    line.format.setBackground(Theme::colour(Theme::CurrentLine));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    setExtraSelections({line});
    if (!m_isRestoring) {
        m_place = place();
    }
}

/// A file that is read again empties the document first, end of the last line
/// included, which no edit of a person can do; cursors go to the start.
void CodeEdit::keepPlace(int from, int removed, int added)
{
    const bool isReset = from == 0 && added == 0 && removed >= m_length;
    m_length = document()->characterCount();
    if (!isReset || m_isRestoring) {
        return;
    }
    m_isRestoring = true;
    QTimer::singleShot(0, this, [this, place = m_place] {
        m_isRestoring = false;
        setPlace(place);
    });
}

}  // namespace App
