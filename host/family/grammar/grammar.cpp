#include "family/grammar/grammar.h"

#include <QCoreApplication>

#include <algorithm>

namespace Family {

namespace {

constexpr int longestShown = 40;

struct KeywordRow
{
    const char* word;
    const char* description;
};

const KeywordRow keywordRows[] = {
    {"animation", QT_TRANSLATE_NOOP("Grammar", "An animation: its number or word, and its name")},
    {"frame", QT_TRANSLATE_NOOP("Grammar", "A frame: the sprite, and how it is shown")},
    {"attack", QT_TRANSLATE_NOOP("Grammar", "A contact box of the next frame that hits")},
    {"body", QT_TRANSLATE_NOOP("Grammar", "A contact box of the next frame that is hit")},
};

/// The edit distance: how many letters must be inserted, deleted, changed or swapped with the next.
/// Keeps only three rows of the table.
int editDistance(const QString& a, const QString& b)
{
    QVector<int> twoAgo;
    QVector<int> above(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j) {
        above[j] = j;
    }
    for (int i = 1; i <= a.size(); ++i) {
        QVector<int> row(b.size() + 1);
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int change = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + change});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1)) {
                row[j] = std::min(row[j], twoAgo[j - 2] + 1);
            }
        }
        twoAgo = above;
        above = row;
    }
    return above[b.size()];
}

}  // namespace

QStringList Grammar::frameOptions()
{
    return {QStringLiteral("offset"), QStringLiteral("delay"), QStringLiteral("flip"),
            QStringLiteral("scale"),  QStringLiteral("angle"), QStringLiteral("loop")};
}

QStringList Grammar::keywords()
{
    QStringList words;
    for (const KeywordRow& row : keywordRows) {
        words.append(QLatin1String(row.word));
    }
    return words;
}

QString Grammar::keywordMeaning(const QString& keyword)
{
    for (const KeywordRow& row : keywordRows) {
        if (keyword == QLatin1String(row.word)) {
            return translatedDescription(QLatin1String(row.description));
        }
    }
    return {};
}

QString nearName(const QString& name, const QStringList& candidates)
{
    if (name.size() > longestShown) {
        return {};
    }
    QString best;
    int bestDistance = std::min(3, name.size() / 2 + 1);
    const QString lower = name.toLower();
    for (const QString& candidate : candidates) {
        const int distance = editDistance(lower, candidate.toLower());
        if (distance < bestDistance) {
            bestDistance = distance;
            best = candidate;
        }
    }
    return best;
}

QString quoted(const QStringRef& text)
{
    if (text.isEmpty()) {
        return QCoreApplication::translate("Family", "the end of the line");
    }
    if (text.size() > longestShown) {
        return QLatin1Char('\'') + text.left(longestShown - 1) + QStringLiteral("…'");
    }
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

QString nameHint(const QString& name, const QStringList& candidates)
{
    const QString near = nearName(name, candidates);
    if (!near.isEmpty()) {
        return QCoreApplication::translate("Family", "Did you mean '%1'?").arg(near);
    }
    if (candidates.isEmpty()) {
        return QCoreApplication::translate("Family", "Here is none to choose from.");
    }
    QStringList sorted = candidates;
    sorted.removeDuplicates();
    constexpr int mostShown = 20;
    const bool cut = sorted.size() > mostShown;
    sorted = sorted.mid(0, mostShown);
    return QCoreApplication::translate("Family", "Expected one of: %1.")
        .arg(sorted.join(QLatin1String(", ")) + (cut ? QStringLiteral(", …") : QString()));
}

}  // namespace Family
