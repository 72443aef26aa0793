#include "family/check/problem.h"

#include <QCoreApplication>

#include <algorithm>
#include <tuple>

namespace Family {

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

auto sortKey(const Problem& problem)
{
    return std::tie(problem.file, problem.line, problem.column, problem.id, problem.text,
                    problem.length);
}

}  // namespace

bool operator==(const Problem& a, const Problem& b)
{
    return sortKey(a) == sortKey(b);
}

void sortProblems(Problems* problems)
{
    std::sort(problems->begin(), problems->end(),
              [](const Problem& a, const Problem& b) { return sortKey(a) < sortKey(b); });
    problems->erase(std::unique(problems->begin(), problems->end()), problems->end());
}

QString problemLine(const Problem& problem)
{
    return QStringLiteral("%1:%2:%3: ")
               .arg(problem.file, QString::number(problem.line), QString::number(problem.column)) +
           levelName(problem.level) + QLatin1String(": ") + problem.text;
}

void ProblemTally::add(const Problems& problems)
{
    for (const Problem& problem : problems) {
        ++(problem.level == Level::Error ? errors : warnings);
    }
}

QString ProblemTally::inWords() const
{
    return Text::tr("%1, %2").arg(Text::tr("%n error(s)", nullptr, errors),
                                  Text::tr("%n warning(s)", nullptr, warnings));
}

}  // namespace Family
