#pragma once

#include "rules/fighterdata.h"

#include <QCoreApplication>

namespace Rules {

class CodeText;

/// Reads characters and stages for the rules, by the grammar of the family.
///
/// Lines with errors are skipped, as in the editor. A file that cannot be read is reported in
/// `notes()`, and the rest is played. Writes nothing, and opens no sprites or sounds. For any
/// thread.
class GameReader
{
    Q_DECLARE_TR_FUNCTIONS(Rules::GameReader)

public:
    /// Files that a character or stage names must be inside the game folder.
    explicit GameReader(const QString& gameFolder);

    /// False, with `error`, if the main file cannot be read.
    bool readFighter(const QString& mainFile, FighterData* data, QString* error);
    bool readStage(const QString& mainFile, StageData* data, QString* error);

    /// The same for a text that is already parsed.
    void takeFighter(const CodeText& text, FighterData* data);
    void takeStage(const CodeText& text, StageData* data);

    /// One line for the user for everything that was skipped.
    QStringList notes() const { return m_notes; }

private:
    QString m_gameFolder;
    QStringList m_notes;
};

/// Computes the gravity of each fighter, which depends on the stage.
void completeGame(Game* game);

/// The main file of a character or stage of a game. `name` is a path, the name of its file without
/// suffix, or the name of its folder. An empty name selects the one at `index`, or the last one if
/// there are fewer. Empty, with `error`, if there is none.
QString findMainFile(const QString& gameFolder, const QString& suffix, const QString& name,
                     int index, QString* error);

}  // namespace Rules
