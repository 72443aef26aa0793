#include "check/check.h"

#include "check/projectcheck.h"
#include "familydocument.h"
#include "project/familyparentproject.h"
#include "project/familyproject.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <memory>

namespace Family {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

/// The game that a main file is part of: the folder above "characters" or
/// "stages", else its own.
QString gameOf(const QFileInfo& mainFile)
{
    QDir folder = mainFile.absoluteDir();
    QDir up = folder;
    while (up.cdUp()) {
        const QString name = QFileInfo(folder.absolutePath()).fileName();
        if (name == QLatin1String("characters") || name == QLatin1String("stages")) {
            return up.absolutePath();
        }
        folder = up;
    }
    return mainFile.absolutePath();
}

Problems checkMainFile(FamilyParentProject* game, const QString& mainFile)
{
    QString error;
    FamilyProject* project = FamilyProject::open(game, mainFile, &error);
    if (!project) {
        const QString name = QDir(game->absolutePath()).relativeFilePath(mainFile);
        return {problemAt(ProblemId::FileUnreadable, {name, error}, {{}, name, 1, 1, 0})};
    }
    const Problems problems = ProjectCheck(project).run();
    project->release();
    delete project;
    return problems;
}

Problems checkMainFiles(const QString& gameFolder, const QStringList& mainFiles)
{
    FamilyParentProject game(gameFolder);
    Problems problems;
    for (const QString& mainFile : mainFiles) {
        problems += checkMainFile(&game, mainFile);
    }
    sortProblems(&problems);
    return problems;
}

Problems checkCodeFile(const QString& fileName, QString* error)
{
    const std::unique_ptr<FamilyDocument> document(FamilyDocument::open(fileName, error));
    return document ? checkDocument(document.get(), fileName) : Problems();
}

}  // namespace

Problems checkDocument(const FamilyDocument* document, const QString& file)
{
    DocumentCheck check(document, file);
    Problems problems = check.run();
    checkAnimationNames(check.animations(), &problems);
    sortProblems(&problems);
    return problems;
}

Problems checkProject(const FamilyProject* project)
{
    Problems problems = ProjectCheck(project).run();
    sortProblems(&problems);
    return problems;
}

Problems checkGame(const QString& gameFolder, QString* error)
{
    const QFileInfo given(gameFolder);
    error->clear();
    if (!given.exists()) {
        *error = Text::tr("There is no file or folder '%1'.").arg(gameFolder);
        return {};
    }
    if (!given.isDir()) {
        return isMainFile(fileKindOf(gameFolder))
                   ? checkMainFiles(gameOf(given), {given.absoluteFilePath()})
                   : checkCodeFile(gameFolder, error);
    }
    const QStringList mainFiles = FamilyParentProject::mainFiles(gameFolder);
    if (mainFiles.isEmpty()) {
        *error = Text::tr("There is no character or stage in '%1'. Expected files such as "
                          "'characters/hero/hero.character'.")
                     .arg(gameFolder);
        return {};
    }
    return checkMainFiles(gameFolder, mainFiles);
}

QString checkedFolder(const QString& path)
{
    const QFileInfo given(path);
    if (given.isDir()) {
        return given.absoluteFilePath();
    }
    return isMainFile(fileKindOf(path)) ? gameOf(given) : QString();
}

}  // namespace Family
