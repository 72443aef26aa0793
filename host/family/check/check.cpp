#include "family/check/check.h"

#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/check/gamecheck.h"
#include "family/project/familyparentproject.h"
#include "family/project/unreachable.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace Family {

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

Problems checkCodeFile(const QString& fileName, QString* error)
{
    Zorv::FileText text;
    return text.read(*Zorv::FileSystemArchive::instance(), fileName, -1, error)
               ? checkText({text, fileKindOf(fileName)}, fileName)
               : Problems();
}

/// The broken records of a sprite or sound file, as problems.
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

Problems checkText(const SourceText& source, const QString& file)
{
    const FileFacts facts = factsOf(source, file);
    Problems problems = facts.problems;
    checkAnimationNames(facts.animations, &problems);
    sortProblems(&problems);
    return problems;
}

Problems checkGame(const QString& path, QString* error)
{
    error->clear();
    if (!QFileInfo::exists(path)) {
        *error = orUnreachable(Text::tr("There is no file or folder '%1'."), path);
        return {};
    }
    if (!QFileInfo(path).isDir() && !isMainFile(fileKindOf(path))) {
        return checkSingleFile(path, error);
    }
    GameCheck check(path);
    if (!check.look()) {
        *error = orUnreachable(Text::tr("There is no character or stage in '%1'. Expected files "
                                        "such as 'characters/hero/hero.character'."),
                               path);
        return {};
    }
    while (!check.isDone()) {
        check.check();
    }
    return check.problems();
}

QString checkedFolder(const QString& path)
{
    return QFileInfo(path).isDir() || isMainFile(fileKindOf(path))
               ? FamilyParentProject::folderOf(path)
               : QString();
}

}  // namespace Family
