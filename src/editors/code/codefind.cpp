#include "editors/code/codefind.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/codeeditor.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QVector>

#include <algorithm>

namespace Zorv {

namespace {

QRegularExpression expressionOf(const QString& pattern, unsigned flags)
{
    QRegularExpression::PatternOptions options = QRegularExpression::DotMatchesEverythingOption |
                                                 QRegularExpression::UseUnicodePropertiesOption;
    if (!(flags & FindCaseSensitive)) {
        options |= QRegularExpression::CaseInsensitiveOption;
    }
    return QRegularExpression(
        flags & FindRegularExpression ? pattern : QRegularExpression::escape(pattern), options);
}

bool splitsPair(const QString& text, int place)
{
    return place > 0 && place < text.size() && text.at(place).isLowSurrogate() &&
           text.at(place - 1).isHighSurrogate();
}

void replaceLoneSurrogates(QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate()) {
            continue;
        }
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            ++i;
        } else {
            text[i] = QChar::ReplacementCharacter;
        }
    }
}

QTextCursor cursorOn(QTextDocument* document, int start, int length)
{
    QTextCursor cursor(document);
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    return cursor;
}

/// Restores the first visible line of the view.
class ViewKeeper
{
public:
    explicit ViewKeeper(CodeEditor* editor)
        : m_editor(editor), m_top(editor->cursorForPosition(QPoint(0, 0)))
    {
    }

    ~ViewKeeper()
    {
        if (m_editor->verticalScrollBar()->value() > 0) {
            m_editor->verticalScrollBar()->setValue(m_top.block().firstLineNumber());
        }
    }

private:
    Q_DISABLE_COPY(ViewKeeper)

    CodeEditor* m_editor;
    QTextCursor m_top;
};

}  // namespace

CodeFind::CodeFind(const QString& pattern, unsigned flags)
    : m_expression(expressionOf(pattern, flags))
{
    if (isValid()) {
        m_expression.optimize();
    }
}

bool CodeFind::isValid() const
{
    return !m_expression.pattern().isEmpty() && m_expression.isValid();
}

QString CodeFind::errorString() const
{
    return m_expression.isValid() ? QString() : m_expression.errorString();
}

int CodeFind::errorOffset() const
{
    return m_expression.patternErrorOffset();
}

QString CodeFind::searchableText(const CodeDocument* document)
{
    return searchableText(document->text());
}

QString CodeFind::searchableText(QString text)
{
    replaceLoneSurrogates(text);
    return text;
}

CodeFind::Match CodeFind::next(const QString& text, int from) const
{
    if (!isValid()) {
        return {};
    }
    const int start = std::max(from, 0);
    return m_expression.match(text, splitsPair(text, start) ? start + 1 : start,
                              QRegularExpression::NormalMatch,
                              QRegularExpression::DontCheckSubjectStringMatchOption);
}

// Expressions match only forward. So search backward in windows before `from`. Each
// window is 64 times larger than the last, so no part of the text is scanned often.
CodeFind::Match CodeFind::previous(const QString& text, int from) const
{
    constexpr qint64 Growth = 64;
    if (!isValid()) {
        return {};
    }
    qint64 size = 1;
    for (int end = std::min(from, text.size()); end >= 0;) {
        const int begin = int(std::max<qint64>(0, end - size + 1));
        Match last;
        int start = begin;
        while (start <= end) {
            const Match match = next(text, start);
            if (!match.hasMatch() || match.capturedStart() > end) {
                break;
            }
            last = match;
            start = std::max(start, match.capturedStart()) + 1;
        }
        if (last.hasMatch()) {
            return last;
        }
        end = begin - 1;
        size *= Growth;
    }
    return {};
}

QRegularExpressionMatchIterator CodeFind::matches(const QString& text) const
{
    return m_expression.globalMatch(text, 0, QRegularExpression::NormalMatch,
                                    QRegularExpression::DontCheckSubjectStringMatchOption);
}

CodeFind::Match CodeFind::matchOf(const QString& text, int start, int length) const
{
    if (!isValid() || splitsPair(text, start)) {
        return {};
    }
    const Match inPlace =
        m_expression.match(text, start, QRegularExpression::NormalMatch,
                           QRegularExpression::AnchoredMatchOption |
                               QRegularExpression::DontCheckSubjectStringMatchOption);
    if (inPlace.hasMatch() && inPlace.capturedStart() == start &&
        inPlace.capturedLength() == length) {
        return inPlace;
    }
    // A later alternative of the expression may match the whole part.
    const QRegularExpression whole(QRegularExpression::anchoredPattern(m_expression.pattern()),
                                   m_expression.patternOptions());
    return whole.match(text.mid(start, length));
}

QString CodeFind::replacement(const Match& match, const QString& with) const
{
    const int groups = m_expression.captureCount();
    QString result;
    for (int i = 0; i < with.size(); ++i) {
        const auto digit = [&with](int place) {
            return place < with.size() ? with.at(place).digitValue() : -1;
        };
        int number = with.at(i) == QLatin1Char('\\') ? digit(i + 1) : -1;
        if (number <= 0 || number > groups) {
            result += with.at(i);
            continue;
        }
        ++i;
        if (digit(i + 1) >= 0 && number * 10 + digit(i + 1) <= groups) {
            number = number * 10 + digit(i + 1);
            ++i;
        }
        result += match.captured(number);
    }
    return result;
}

void CodeFind::select(CodeEditor* editor, int start, int length, bool backward)
{
    QTextDocument* document = editor->document();
    const QTextCursor cursor = cursorOn(document, start, length);
    const QTextBlock block = document->findBlock(start);
    editor->reveal(block);
    editor->reveal(document->findBlock(start + length));
    const int half = editor->displayedLineCount() / 2;
    const int line = block.firstLineNumber() + (backward ? -half : half);
    const QTextBlock margin =
        document->findBlockByLineNumber(qBound(0, line, document->lineCount() - 1));
    if (margin.isValid()) {
        editor->setTextCursor(QTextCursor(margin));
    }
    editor->setTextCursor(cursor);
}

void CodeFind::replaceSelection(CodeEditor* editor, const Match& match, const QString& with) const
{
    CodeDocument* document = editor->codeDocument();
    QTextCursor cursor = editor->textCursor();
    document->beginChange(QString());
    document->replaceSelection(replacement(match, with), cursor);
    document->endChange();
    editor->setTextCursor(cursor);
}

int CodeFind::replaceAll(CodeEditor* editor, const QString& text, const QString& with) const
{
    if (!isValid()) {
        return 0;
    }
    QVector<Replacement> edits;
    QRegularExpressionMatchIterator all = matches(text);
    while (all.hasNext()) {
        const Match match = all.next();
        edits.append({match.capturedStart(), match.capturedLength(), replacement(match, with)});
    }
    if (edits.isEmpty()) {
        return 0;
    }
    const ViewKeeper view(editor);
    replaceParts(editor->codeDocument(), edits, QString());
    return edits.size();
}

void CodeFind::replaceParts(CodeDocument* document, const QVector<Replacement>& parts,
                            const QString& title)
{
    if (parts.isEmpty()) {
        return;
    }
    document->beginChange(title);
    document->placeChange(cursorOn(document, parts.first().start, parts.first().length));
    QTextCursor cursor(document);
    // Edit from the end: positions before an edit stay valid.
    for (auto part = parts.crbegin(); part != parts.crend(); ++part) {
        cursor.setPosition(part->start);
        cursor.setPosition(part->start + part->length, QTextCursor::KeepAnchor);
        cursor.insertText(part->text);
    }
    document->endChange();
}

}  // namespace Zorv
