#include "operations/find/findpattern.h"

#include <QCoreApplication>

#include <algorithm>

namespace Operations {

using Zorv::CodeFind;

namespace {

QString byLines()
{
    return QStringLiteral("(?m-s)");
}

bool isWordPart(QChar character)
{
    return character.isLetterOrNumber() || character == QLatin1Char('_');
}

/// Adds a word boundary only at an end with a word character; after punctuation \b would not match.
QString wholeWord(const QString& text)
{
    const QString edge = QStringLiteral("\\b");
    return (isWordPart(text.front()) ? edge : QString()) + QRegularExpression::escape(text) +
           (isWordPart(text.back()) ? edge : QString());
}

CodeFind makeFind(const QString& text, int options)
{
    unsigned flags = options & FindPattern::MatchCase ? unsigned(Zorv::FindCaseSensitive) : 0;
    if (text.isEmpty() || !(options & (FindPattern::WholeWord | FindPattern::Expression))) {
        return CodeFind(text, flags);
    }
    flags |= Zorv::FindRegularExpression;
    if (!(options & FindPattern::Expression)) {
        return CodeFind(wholeWord(text), flags);
    }
    return CodeFind(byLines() + (options & FindPattern::WholeWord
                                     ? QStringLiteral("\\b(?:%1)\\b").arg(text)
                                     : text),
                    flags);
}

}  // namespace

FindPattern::FindPattern(const QString& text, int options) : m_text(text), m_options(options)
{
    if (options & Expression) {
        // Tests the text alone: an unbalanced bracket must not match one in the code added around
        // it.
        const CodeFind alone(byLines() + text, Zorv::FindRegularExpression);
        if (!text.isEmpty() && !alone.isValid()) {
            const int place = std::max(alone.errorOffset() - byLines().size(), 0);
            m_error = QCoreApplication::translate("Operations::FindPattern", "Character %1: %2")
                          .arg(QString::number(place + 1), alone.errorString());
            return;
        }
    }
    m_find = makeFind(text, options);
}

QString FindPattern::replacement(const QString& with) const
{
    if (!(m_options & Expression)) {
        return with;
    }
    QString result;
    for (int i = 0; i < with.size(); ++i) {
        if (with.at(i) != QLatin1Char('\\') || i + 1 == with.size()) {
            result += with.at(i);
            continue;
        }
        ++i;
        switch (with.at(i).unicode()) {
        case 'n':
            result += QLatin1Char('\n');
            break;
        case 't':
            result += QLatin1Char('\t');
            break;
        default:
            result += with.at(i - 1);
            result += with.at(i);
        }
    }
    return result;
}

}  // namespace Operations
