#include "operations/checkpath.h"

#include "family/check/check.h"

#include <QDir>

namespace Operations {

using Family::Problem;
using Family::Problems;

Problems checkPath(const QString& path, QString* error)
{
    Problems problems = Family::checkGame(path, error);
    const QString folder = Family::checkedFolder(path);
    if (folder.isEmpty()) {
        return problems;
    }
    const QDir game(folder);
    const bool isRelative = QDir::isRelativePath(path);
    for (Problem& problem : problems) {
        const QString file = QDir::cleanPath(game.absoluteFilePath(problem.file));
        problem.file = isRelative ? QDir::current().relativeFilePath(file) : file;
    }
    return problems;
}

}  // namespace Operations
