#include "app/run/outputpanel.h"

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace App {

namespace {

constexpr int Turn = 40;              // milliseconds
constexpr int BytesATurn = 32 * 1024;
constexpr int MaxPending = 1000000;

}  // namespace

OutputPanel::OutputPanel(QWidget* parent)
    : QWidget(parent), m_edit(new QPlainTextEdit), m_copy(new QToolButton),
      m_clear(new QToolButton)
{
    m_edit->setReadOnly(true);
    m_edit->setUndoRedoEnabled(false);
    m_edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_edit->setMaximumBlockCount(MaxLines);
    m_edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusProxy(m_edit);
    makeBar();
    retranslate();
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

void OutputPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void OutputPanel::add(const QByteArray& bytes)
{
    for (int at = 0; at < bytes.size(); at += BytesATurn) {
        const QByteArray some = bytes.mid(at, BytesATurn);
        m_pendingSize += some.size();
        const bool isSmall =
            !m_pieces.empty() && m_pieces.back().note.isNull() &&
            m_pieces.back().bytes.size() + some.size() <= BytesATurn;
        if (isSmall) {
            m_pieces.back().bytes += some;
        } else {
            m_pieces.push_back({some, QString()});
        }
    }
    dropOld();
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void OutputPanel::addNote(const QString& text)
{
    m_pieces.push_back({QByteArray(), text});
    if (!m_timer.isActive()) {
        showSome();
    }
}

// What would be pushed out of the view before anybody saw it.
void OutputPanel::dropOld()
{
    for (auto it = m_pieces.begin(); m_pendingSize > MaxPending && it != m_pieces.end();) {
        if (!it->note.isNull()) {
            ++it;
            continue;
        }
        m_pendingSize -= it->bytes.size();
        m_dropped += it->bytes.size();
        it = m_pieces.erase(it);
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
        const Piece piece = m_pieces.front();
        m_pieces.pop_front();
        if (piece.note.isNull()) {
            m_pendingSize -= piece.bytes.size();
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

}  // namespace App
