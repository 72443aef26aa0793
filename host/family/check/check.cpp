#include "family/check/check.h"

#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/check/projectcheck.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/unnamedprojects.h"
#include "family/project/unreachable.h"

#include <zorv/core/filesystemarchive.h>

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

Problems checkMainFile(FamilyParentProject* game, const QString& mainFile)
{
    QString error;
    FamilyProject* project = FamilyProject::open(game, mainFile, &error);
    if (!project) {
        const QString name = QDir(game->absolutePath()).relativeFilePath(mainFile);
        const QString reason = unreadableReason(mainFile);
        Problem problem = problemAt(ProblemId::FileUnreadable, {name, reason}, {{}, name, 1, 1, 0});
        // Each text has advice of its own.
        problem.text = reason.isEmpty() ? error : problem.text;
        return {problem};
    }
    const Problems problems = ProjectCheck(project).run();
    project->release();
    delete project;
    return problems;
}

Problems checkNames(const QStringList& unnamed)
{
    Problems problems;
    for (const QString& name : unnamed) {
        Problem problem = problemAt(ProblemId::FileUnreadable, {name, {}}, {{}, name, 1, 1, 0});
        problem.text = unnamedProjectText(name);
        problems.append(problem);
    }
    return problems;
}

Problems checkMainFiles(const QString& gameFolder, const QStringList& mainFiles,
                        const QStringList& unnamed = {})
{
    FamilyParentProject game(gameFolder);
    Problems problems = checkNames(unnamed);
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

/// The broken records of a sprite or sound file.
Problems checkAssets(const QString& fileName, const QStringList& lines)
{
    Problems problems;
    for (const QString& line : lines) {
        problems.append(
            problemAt(ProblemId::RecordBroken, {fileName, line}, {{}, fileName, 1, 1, 0}));
    }
    return problems;
}

Problems checkSprites(const QString& fileName, QString* error)
{
    SpriteCollection* sprites = openSprites(fileName, error);
    const Problems problems = sprites ? checkAssets(fileName, sprites->loadErrors()) : Problems();
    if (sprites) {
        sprites->release();
    }
    return problems;
}

Problems checkSounds(const QString& fileName, QString* error)
{
    SoundFile sounds;
    if (!sounds.fromFile(*Zorv::FileSystemArchive::instance(), fileName, false)) {
        *error = sounds.errorString();
    }
    return checkAssets(fileName, sounds.loadErrors());
}

Problems checkSingleFile(const QString& fileName, QString* error)
{
    const QString suffix = QFileInfo(fileName).suffix();
    if (suffix == QLatin1String("sprites")) {
        return checkSprites(fileName, error);
    }
    return suffix == QLatin1String("sounds") ? checkSounds(fileName, error)
                                             : checkCodeFile(fileName, error);
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
        *error = orUnreachable(Text::tr("There is no file or folder '%1'."), gameFolder);
        return {};
    }
    if (!given.isDir()) {
        return isMainFile(fileKindOf(gameFolder))
                   ? checkMainFiles(checkedFolder(gameFolder), {given.absoluteFilePath()})
                   : checkSingleFile(gameFolder, error);
    }
    const QStringList mainFiles = FamilyParentProject::mainFiles(gameFolder);
    const QString game = checkedFolder(gameFolder);
    QStringList unnamed = unnamedProjects(gameFolder);
    for (QString& name : unnamed) {
        name = QDir(game).relativeFilePath(given.absoluteFilePath() + QLatin1Char('/') + name);
    }
    if (mainFiles.isEmpty() && unnamed.isEmpty()) {
        *error = orUnreachable(Text::tr("There is no character or stage in '%1'. Expected files "
                                        "such as 'characters/hero/hero.character'."),
                               gameFolder);
        return {};
    }
    return checkMainFiles(game, mainFiles, unnamed);
}

QString checkedFolder(const QString& path)
{
    return QFileInfo(path).isDir() || isMainFile(fileKindOf(path))
               ? FamilyParentProject::folderOf(path)
               : QString();
}

}  // namespace Family
