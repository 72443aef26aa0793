#include "app/run/outputpanel.h"

#include "app/look/codefont.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

// Output is cut into pieces of limited size, which wait in a queue. A timer shows one piece per
// turn, so that the window stays usable while a program prints without pause. If more is waiting
// than the view can hold, the oldest pieces are dropped before they are decoded, and one note says
// how much is missing. Notes of the editor are never dropped.

namespace App {

namespace {

constexpr int Turn = 40;  // milliseconds
constexpr int BytesATurn = 16 * 1024;
constexpr int LinesATurn = 400;
constexpr int UsualColumns = 80;

/// The end of the piece that begins at `from`; `lines` receives its number of line ends.
int endOfPiece(const QByteArray& bytes, int from, int* lines)
{
    const int last = std::min(bytes.size(), from + BytesATurn);
    *lines = 0;
    int end = from;
    while (end < last && *lines < LinesATurn) {
        *lines += bytes.at(end++) == '\n' ? 1 : 0;
    }
    return end;
}

}  // namespace

OutputPanel::OutputPanel(QWidget* parent)
    : QWidget(parent), m_edit(new QPlainTextEdit), m_copy(new QToolButton), m_clear(new QToolButton)
{
    m_edit->setReadOnly(true);
    m_edit->setUndoRedoEnabled(false);
    m_edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_edit->setMaximumBlockCount(MaxLines);
    m_edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusProxy(m_edit);
    makeBar();
    retranslate();
    reconfig();
    m_timer.setInterval(Turn);
    connect(&m_timer, &QTimer::timeout, this, &OutputPanel::showSome);
}

void OutputPanel::makeBar()
{
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_copy);
    bar->addWidget(m_clear);
    bar->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(m_edit);
    for (QToolButton* button : {m_copy, m_clear}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
    }
    connect(m_copy, &QToolButton::clicked, this, &OutputPanel::copyAll);
    connect(m_clear, &QToolButton::clicked, this, &OutputPanel::clear);
}

void OutputPanel::retranslate()
{
    m_copy->setText(tr("Copy"));
    m_copy->setToolTip(tr("Copy the selected text, or all"));
    m_clear->setText(tr("Clear"));
    m_clear->setToolTip(tr("Remove all lines"));
    m_edit->setAccessibleName(tr("Engine output"));
}

void OutputPanel::reconfig()
{
    m_edit->setFont(codeFont());
}

void OutputPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void OutputPanel::add(const QByteArray& bytes)
{
    for (int at = 0; at < bytes.size();) {
        int lines = 0;
        const int end = endOfPiece(bytes, at, &lines);
        addPiece(bytes.mid(at, end - at), lines);
        at = end;
    }
    dropOld();
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void OutputPanel::addPiece(const QByteArray& bytes, int lines)
{
    m_pendingSize += bytes.size();
    m_pendingLines += lines;
    if (!m_pieces.empty() && m_pieces.back().note.isNull() &&
        m_pieces.back().bytes.size() + bytes.size() <= BytesATurn &&
        m_pieces.back().lines + lines <= LinesATurn) {
        m_pieces.back().bytes += bytes;
        m_pieces.back().lines += lines;
    } else {
        m_pieces.push_back({bytes, lines, QString()});
    }
}

void OutputPanel::addNote(const QString& text)
{
    m_pieces.push_back({QByteArray(), 0, text});
    if (!m_timer.isActive()) {
        showSome();
    }
}

OutputPanel::Piece OutputPanel::takePiece(std::deque<Piece>::iterator at)
{
    Piece piece = std::move(*at);
    m_pendingSize -= piece.bytes.size();
    m_pendingLines -= piece.lines;
    m_pieces.erase(at);
    return piece;
}

// Drops output that would scroll out of the view before anyone could see it.
void OutputPanel::dropOld()
{
    for (size_t i = 0;
         i + 1 < m_pieces.size() && (m_pendingSize > MaxCharacters || m_pendingLines > MaxLines);) {
        if (m_pieces[i].note.isNull()) {
            m_dropped += takePiece(m_pieces.begin() + int(i)).bytes.size();
        } else {
            ++i;
        }
    }
}

void OutputPanel::showSome()
{
    if (m_dropped > 0) {
        append(m_decoder.finish(), false);
        append(tr("(%1 are left out)").arg(QLocale().formattedDataSize(m_dropped)), true);
        m_dropped = 0;
    }
    bool isTurnOver = false;
    while (!m_pieces.empty() && !isTurnOver) {
        const Piece piece = takePiece(m_pieces.begin());
        if (piece.note.isNull()) {
            append(m_decoder.decode(piece.bytes), false);
            isTurnOver = true;
        } else {
            append(m_decoder.finish(), false);
            append(piece.note, true);
        }
    }
    if (m_pieces.empty()) {
        m_timer.stop();
    }
}

void OutputPanel::append(const QString& text, bool isNote)
{
    if (text.isEmpty()) {
        return;
    }
    QScrollBar* bar = m_edit->verticalScrollBar();
    const bool isAtEnd = bar->value() == bar->maximum();
    QTextCursor cursor(m_edit->document());
    cursor.movePosition(QTextCursor::End);
    QTextCharFormat format;
    format.setFontItalic(isNote);
    const bool isInLine = !cursor.atBlockStart();
    cursor.insertText((isNote && isInLine ? QStringLiteral("\n") : QString()) + text +
                          (isNote ? QStringLiteral("\n") : QString()),
                      format);
    const int tooMany = m_edit->document()->characterCount() - MaxCharacters;
    if (tooMany > 0) {
        const QTextBlock last = m_edit->document()->findBlock(tooMany);
        cursor.setPosition(0);
        cursor.setPosition(last.next().isValid() ? last.next().position() : tooMany,
                           QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    if (isAtEnd) {
        bar->setValue(bar->maximum());
    }
}

void OutputPanel::clear()
{
    m_pieces.clear();
    m_pendingSize = 0;
    m_pendingLines = 0;
    m_dropped = 0;
    m_edit->clear();
}

void OutputPanel::copyAll() const
{
    const QTextCursor cursor = m_edit->textCursor();
    QString text = cursor.hasSelection() ? cursor.selectedText() : m_edit->toPlainText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    QGuiApplication::clipboard()->setText(text);
}

QString OutputPanel::text() const
{
    return m_edit->toPlainText();
}

QSize OutputPanel::sizeHint() const
{
    return {m_edit->fontMetrics().averageCharWidth() * UsualColumns, QWidget::sizeHint().height()};
}

}  // namespace App
