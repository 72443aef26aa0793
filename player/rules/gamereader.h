#pragma once

#include "rules/fighterdata.h"

#include <QCoreApplication>

namespace Rules {

class CodeText;

/// Reads characters and stages for the rules, by the grammar of the family.
///
/// Lines with errors are passed over, as in the editor; a file that cannot be read is told in
/// `notes()`, and the rest plays. Nothing is written, and sprites and sounds are not opened. Any
/// thread may use one.
class GameReader
{
    Q_DECLARE_TR_FUNCTIONS(Rules::GameReader)

public:
    /// Files that a character or stage names have to lie in the game folder.
    explicit GameReader(const QString& gameFolder);

    /// False, with `error`, if the main file cannot be read.
    bool readFighter(const QString& mainFile, FighterData* data, QString* error);
    bool readStage(const QString& mainFile, StageData* data, QString* error);

    /// The same from a text that was read before.
    void takeFighter(const CodeText& text, FighterData* data);
    void takeStage(const CodeText& text, StageData* data);

    /// What was passed over, a line each for the person.
    QStringList notes() const { return m_notes; }

private:
    QString m_gameFolder;
    QStringList m_notes;
};

/// What follows from both of a match: falls, and roles of a character without any animation.
void completeGame(Game* game);

/// The main file of a character or stage of a game: `name` is a path, the name of its file without
/// suffix, or of its folder. With an empty name the one at `index`, the last if there are fewer.
/// Empty, with `error`, without one.
QString findMainFile(const QString& gameFolder, const QString& suffix, const QString& name,
                     int index, QString* error);

}  // namespace Rules
