#include "app/actions/wordmatch.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <algorithm>

// Each typed word is scored against the label and the path. From best to worst: it begins a word,
// it occurs anywhere in the joined words, its letters occur there in the same order. Beginning the
// first word, and matching in the label, give a bonus. Comparing case-folded words makes the match
// independent of case.

namespace App {

namespace {

enum Score {
    NoMatch = -1,
    LettersMatch = 1,
    InnerMatch = 10,
    PrefixMatch = 30,
    LabelBonus = 10,
    FirstWordBonus = 5
};

QStringList wordsOf(const QString& text)
{
    static const QRegularExpression gaps(QStringLiteral("\\W+"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    return text.toCaseFolded().split(gaps, Qt::SkipEmptyParts);
}

bool hasLettersInOrder(const QString& text, const QString& letters)
{
    int at = 0;
    return std::all_of(letters.begin(), letters.end(), [&](QChar letter) {
        at = text.indexOf(letter, at) + 1;
        return at > 0;
    });
}

int matchWord(const QString& word, const QString& text)
{
    const QStringList words = wordsOf(text);
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&word](const QString& each) { return each.startsWith(word); });
    if (found != words.end()) {
        return PrefixMatch + (found == words.begin() ? FirstWordBonus : 0);
    }
    const QString joined = words.join(QString());
    if (joined.contains(word)) {
        return InnerMatch;
    }
    return hasLettersInOrder(joined, word) ? LettersMatch : NoMatch;
}

}  // namespace

int matchWords(const QString& typed, const QString& label, const QString& path)
{
    const QStringList words = wordsOf(typed);
    int sum = 0;
    for (const QString& word : words) {
        const int inLabel = matchWord(word, label);
        const int score =
            std::max(inLabel < 0 ? inLabel : inLabel + LabelBonus, matchWord(word, path));
        if (score < 0) {
            return NoMatch;
        }
        sum += score;
    }
    return sum;
}

}  // namespace App
