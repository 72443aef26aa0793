#include "operations/moveframes.h"

#include "family/grammar/filekind.h"
#include "family/project/familyparentproject.h"
#include "family/project/unreachable.h"
#include "rules/gamereader.h"

#include <QFileInfo>

namespace Operations {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations)
};

bool isCharacter(const QString& path)
{
    return Family::fileKindOf(path) == Family::FileKind::Character;
}

QStringList charactersOf(const QString& path, QStringList* errors)
{
    if (!QFileInfo::exists(path)) {
        errors->append(Family::orUnreachable(Text::tr("There is no file or folder '%1'."), path));
        return {};
    }
    QStringList files;
    const QStringList found =
        QFileInfo(path).isDir() ? Family::FamilyParentProject::mainFiles(path) : QStringList(path);
    for (const QString& file : found) {
        if (isCharacter(file)) {
            files.append(file);
        }
    }
    if (files.isEmpty()) {
        errors->append(Text::tr("There is no character in '%1'.").arg(path));
    }
    return files;
}

}  // namespace

QVector<CharacterMoves> moveFrames(const QString& path, QStringList* errors)
{
    QVector<CharacterMoves> result;
    Rules::GameReader reader(Family::FamilyParentProject::folderOf(path));
    const QStringList files = charactersOf(path, errors);
    for (const QString& file : files) {
        CharacterMoves character;
        QString error;
        if (!reader.readFighter(file, &character.data, &error)) {
            errors->append(error);
            continue;
        }
        for (int move = 0; move < character.data.moves.size(); ++move) {
            character.facts.append(Rules::factsOf(character.data, move));
        }
        result.append(character);
    }
    *errors += reader.notes();
    return result;
}

}  // namespace Operations
