#include "picture/loadedmatch.h"

#include "family/project/familyparentproject.h"
#include "family/project/filereference.h"
#include "rules/codetext.h"
#include "rules/gamereader.h"

#include <QDir>
#include <QFileInfo>

namespace Player {

using Family::FileKind;
using Rules::CodeText;
using Rules::GameReader;

namespace {

/// The folder that must contain all files that a main file names.
QString rootOf(const QString& game, const QString& mainFile)
{
    return Family::staysInside(game, mainFile) ? game
                                               : Family::FamilyParentProject::folderOf(mainFile);
}

/// Who plays on a side. The opponent of a copy is a character of the game other than the original,
/// if there is one.
QString nameOf(const MatchRequest& request, int index)
{
    if (index < request.characters.size() || request.original.isEmpty()) {
        return request.characters.value(index, request.characters.value(0));
    }
    const QStringList files = Family::FamilyParentProject::mainFiles(request.game);
    for (const QString& file : files) {
        if (file.endsWith(QLatin1String(".character")) &&
            QFileInfo(file) != QFileInfo(request.original)) {
            return request.characters.isEmpty() ? QString() : file;
        }
    }
    return request.characters.value(0);
}

}  // namespace

MatchRequest withOriginal(const MatchRequest& request)
{
    MatchRequest result = request;
    if (request.original.endsWith(QLatin1String(".stage"))) {
        result.stage = request.original;
    } else if (!request.original.isEmpty() && !request.characters.isEmpty()) {
        result.characters[0] = request.original;
    }
    return result;
}

QString originalOf(const MatchRequest& request, const QString& file)
{
    const bool isStage = request.original.endsWith(QLatin1String(".stage"));
    const QFileInfo copy(isStage ? request.stage : request.characters.value(0));
    if (request.original.isEmpty() || Family::staysInside(request.game, file)) {
        return file;
    }
    if (QFileInfo(file) == copy) {
        return request.original;
    }
    // A copy has the folder structure of the game around it.
    const QString relative = copy.absoluteDir().relativeFilePath(file);
    return QDir::cleanPath(QFileInfo(request.original).absoluteDir().absoluteFilePath(relative));
}

bool LoadedMatch::load(const MatchRequest& request, QString* error)
{
    notes.clear();
    files.clear();
    if (!QFileInfo(request.game).isDir()) {
        *error = tr("There is no folder '%1'.").arg(request.game);
        return false;
    }
    if (!loadFighter(request, 0, error) || !loadFighter(request, 1, error) ||
        !loadStage(request, error)) {
        return false;
    }
    game.hasIntro = request.hasIntro;
    Rules::completeGame(&game);
    notes.removeDuplicates();
    return true;
}

void LoadedMatch::addFiles(const QStringList& paths)
{
    for (const QString& path : paths) {
        if (!path.isEmpty() && !files.contains(path)) {
            files.append(path);
        }
    }
}

bool LoadedMatch::loadFighter(const MatchRequest& request, int index, QString* error)
{
    const QString name = nameOf(request, index);
    const QString file =
        Rules::findMainFile(request.game, QStringLiteral(".character"), name, index, error);
    if (file.isEmpty()) {
        return false;
    }
    const QString root = rootOf(request.game, file);
    CodeText text(root, file, FileKind::Character);
    if (!text.read(error)) {
        return false;
    }
    GameReader reader(root);
    reader.takeFighter(text, &game.fighters[index]);
    looks[index] = fighterLook(text);
    addFiles(text.files() + QStringList{looks[index].sprites, looks[index].sounds});
    for (const Costume& costume : qAsConst(looks[index].costumes)) {
        addFiles({costume.file});
    }
    notes += reader.notes();
    return true;
}

bool LoadedMatch::loadStage(const MatchRequest& request, QString* error)
{
    game.stage = {};
    stage = {};
    const QString file =
        Rules::findMainFile(request.game, QStringLiteral(".stage"), request.stage, 0, error);
    if (file.isEmpty() && request.stage.isEmpty()) {
        error->clear();
        return true;
    }
    const QString root = rootOf(request.game, file);
    CodeText text(root, file, FileKind::Stage);
    if (file.isEmpty() || !text.read(error)) {
        return false;
    }
    GameReader reader(root);
    reader.takeStage(text, &game.stage);
    stage = stageLook(text);
    addFiles(text.files() + QStringList{stage.sprites, stage.music.file});
    notes += reader.notes();
    return true;
}

}  // namespace Player
