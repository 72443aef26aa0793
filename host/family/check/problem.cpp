#include "family/check/problem.h"

#include <algorithm>
#include <tuple>

namespace Family {

namespace {

auto sortKey(const Problem& problem)
{
    return std::tie(problem.file, problem.line, problem.column, problem.id, problem.text,
                    problem.length);
}

}  // namespace

void sortProblems(Problems* problems)
{
    std::sort(problems->begin(), problems->end(),
              [](const Problem& a, const Problem& b) { return sortKey(a) < sortKey(b); });
    const auto end =
        std::unique(problems->begin(), problems->end(),
                    [](const Problem& a, const Problem& b) { return sortKey(a) == sortKey(b); });
    problems->erase(end, problems->end());
}

QString problemLine(const Problem& problem)
{
    return QStringLiteral("%1:%2:%3: ")
               .arg(problem.file, QString::number(problem.line), QString::number(problem.column)) +
           levelName(problem.level) + QLatin1String(": ") + problem.text;
}

}  // namespace Family
