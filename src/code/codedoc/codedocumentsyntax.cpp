#include "code/codedoc/codedocument_p.h"

#include "core/messages.h"

#include <algorithm>

namespace Zorv {

std::array<QTextCharFormat, CodeParserSyntax::TokenTypeCount> CodeDocumentPrivate::m_syntaxFmts = {
    makeFormat(false, false, Qt::black),
    makeFormat(false, true, Qt::gray),
    makeFormat(false, false, Qt::red),
    makeFormat(false, false, Qt::blue),
    makeFormat(true, false, Qt::black),
    makeFormat(true, false, QColor(0, 128, 0)),
    makeFormat(true, false, QColor(255, 128, 0)),
    makeFormat(true, false, QColor(0, 128, 128)),
    makeFormat(false, false, QColor(128, 0, 255)),
    makeFormat(false, false, QColor(255, 0, 255)),
};

QTextCharFormat CodeDocumentPrivate::makeFormat(bool bold, bool italic, const QColor& color)
{
    QTextCharFormat format;
    format.setFontFamily(QStringLiteral("Courier"));
    format.setFontPointSize(10);
    format.setFontFixedPitch(true);
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(italic);
    format.setForeground(QBrush(color, Qt::SolidPattern));
    return format;
}

CodeDocumentPrivate::CodeDocumentPrivate(CodeDocument* document)
    : QSyntaxHighlighter(static_cast<QObject*>(nullptr)), q(document), titles(document)
{
    // Slots run in order of connection: before Qt's highlighter, the highlighter itself, after it.
    connect(q, &QTextDocument::contentsChange, this, &CodeDocumentPrivate::aboutToParse);
    setDocument(q);
    connect(q, &QTextDocument::contentsChange, this, &CodeDocumentPrivate::parsed);
    connect(q, &QTextDocument::undoCommandAdded, this, [this] { titles.grown(); });
    connect(q, &QTextDocument::contentsChanged, this, [this] { titles.changed(); });
    cursor = QTextCursor(q);
}

CodeDocumentPrivate::~CodeDocumentPrivate()
{
    // The highlighter's destructor removes all formats, which would count as a change.
    disconnect(q, nullptr, this, nullptr);
}

void CodeDocumentPrivate::storeMessages(CodeBlockData* data, bool hadMessages)
{
    if (!hadMessages && lineMessages.isEmpty()) {
        return;
    }
    const int line = data->d->block().blockNumber();
    for (Message& message : lineMessages) {
        message.line = line;
    }
    std::stable_sort(lineMessages.begin(), lineMessages.end(),
                     [](const Message& a, const Message& b) { return a.column < b.column; });
    q->messages()->replaceLine(line, lineMessages);
    lineMessages.resize(0);
}

void CodeDocumentPrivate::ok(TokenType type, unsigned start, unsigned end)
{
    currentData->d->isParsed = currentData->d->isParsed || type != Comment;
    setFormat(int(start), int(end - start), m_syntaxFmts[type]);
}

void CodeDocumentPrivate::report(Message::Type type, CodeBlockData::SyntaxMessage::Type syntaxType,
                                 TokenType token, const QColor& underline, const QString& text,
                                 unsigned start, unsigned end)
{
    currentData->d->isParsed = true;
    QTextCharFormat format = m_syntaxFmts[token];
    format.setUnderlineColor(underline);
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    currentData->d->makeDetails().syntaxMessages.append({syntaxType, int(start), int(end), text});
    setFormat(int(start), int(end - start), format);
    lineMessages.append({type, 0, int(start), text});
}

void CodeDocumentPrivate::error(TokenType type, const QString& text, unsigned start, unsigned end)
{
    report(Message::Error, CodeBlockData::SyntaxMessage::Error, type, Qt::red, text, start, end);
}

void CodeDocumentPrivate::warning(TokenType type, const QString& text, unsigned start, unsigned end)
{
    report(Message::Warning, CodeBlockData::SyntaxMessage::Warning, type, QColor(255, 127, 0), text,
           start, end);
}

void CodeDocumentPrivate::deprecated(TokenType type, const QString& text, unsigned start,
                                     unsigned end)
{
    report(Message::Warning, CodeBlockData::SyntaxMessage::Deprecated, type, QColor(255, 255, 0),
           text, start, end);
}

void CodeDocumentPrivate::parenthesis(bool opening, QChar character, int position)
{
    using Parenthesis = CodeBlockData::Parenthesis;
    currentData->d->makeDetails().parenthesis.append(
        {opening ? Parenthesis::Opening : Parenthesis::Closing, character, position});
}

}  // namespace Zorv
