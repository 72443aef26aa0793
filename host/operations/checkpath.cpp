#include "operations/checkpath.h"

#include "family/check/check.h"
#include "family/project/unreachable.h"

#include <QCoreApplication>
#include <QDir>

namespace Operations {

using Family::Problem;
using Family::ProblemId;
using Family::Problems;

namespace {

Problem problemOf(const QString& closedFolder, const QDir& game)
{
    Problem problem;
    problem.id = ProblemId::FileUnreadable;
    problem.level = Family::problemInfo(problem.id).level;
    problem.file = game.relativeFilePath(closedFolder);
    problem.text = Family::problemText(
        problem.id, {problem.file, QCoreApplication::translate("Family", "Permission denied")});
    return problem;
}

}  // namespace

Problems checkPath(const QString& path, QString* error)
{
    Problems problems = Family::checkGame(path, error);
    const QString folder = Family::checkedFolder(path);
    if (folder.isEmpty()) {
        return problems;
    }
    const QDir game(folder);
    if (error->isEmpty() && QFileInfo(path).isDir()) {
        for (const QString& closed : Family::closedFolders(QFileInfo(path).absoluteFilePath())) {
            problems.append(problemOf(closed, game));
        }
        Family::sortProblems(&problems);
    }
    const bool isRelative = QDir::isRelativePath(path);
    for (Problem& problem : problems) {
        const QString file = QDir::cleanPath(game.absoluteFilePath(problem.file));
        problem.file = isRelative ? QDir::current().relativeFilePath(file) : file;
    }
    return problems;
}

}  // namespace Operations
