#include "operations/checkpath.h"

#include "family/check/check.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

namespace Family {

namespace {

// What cannot be looked into may hold a project: it is not passed over.
Problems closedFolders(const QString& folder, const QDir& game)
{
    Problems problems;
    QDirIterator folders(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                         QDirIterator::Subdirectories);
    while (folders.hasNext()) {
        const QString path = folders.next();
        const QFileInfo info = folders.fileInfo();
        if (!info.isReadable() || !info.isExecutable()) {
            Problem problem;
            problem.id = ProblemId::FileUnreadable;
            problem.level = problemInfo(problem.id).level;
            problem.file = game.relativeFilePath(path);
            problem.text = problemText(
                problem.id,
                {problem.file, QCoreApplication::translate("Family", "Permission denied")});
            problems.append(problem);
        }
    }
    return problems;
}

}  // namespace

Problems checkPath(const QString& path, QString* error)
{
    Problems problems = checkGame(path, error);
    const QString folder = checkedFolder(path);
    if (folder.isEmpty()) {
        return problems;
    }
    const QDir game(folder);
    if (error->isEmpty() && QFileInfo(path).isDir()) {
        problems += closedFolders(QFileInfo(path).absoluteFilePath(), game);
        sortProblems(&problems);
    }
    const bool isRelative = QDir::isRelativePath(path);
    for (Problem& problem : problems) {
        const QString file = QDir::cleanPath(game.absoluteFilePath(problem.file));
        problem.file = isRelative ? QDir::current().relativeFilePath(file) : file;
    }
    return problems;
}

}  // namespace Family
