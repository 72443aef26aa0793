#pragma once

#include "cli/options.h"

#include <QVector>

namespace Cli {

class Output;

/// A command: one row of the table.
struct Command
{
    static constexpr int Any = 1000000;

    const char* name;      ///< one or two words
    const char* operands;  ///< as shown in the usage text
    int fewest;            ///< minimum number of operands
    int most;
    quint64 options;  ///< a combination of `Option`
    int (*run)(const Invocation& invocation, Output& output);
    const char* summary;  ///< one line
    const char* details;  ///< several lines, for `help`

    QString usage() const;
};

/// The rows, in the order of `help`.
const QVector<Command>& commands();

/// The command at the start of the arguments; `words` receives the number of words in its name.
/// Null if there is none.
const Command* findCommand(const QStringList& arguments, int* words);

/// Parses the arguments after the command name. False, with `error`, if the command does not accept
/// them.
bool parseArguments(const Command& command, const QStringList& arguments, Invocation* invocation,
                    QString* error);

int checkCommand(const Invocation& invocation, Output& output);
int fixProblems(const Invocation& invocation, Output& output);
int newGame(const Invocation& invocation, Output& output);
int newCharacter(const Invocation& invocation, Output& output);
int newStage(const Invocation& invocation, Output& output);
int newFile(const Invocation& invocation, Output& output);
int findText(const Invocation& invocation, Output& output);
int treeCommand(const Invocation& invocation, Output& output);
int getCommand(const Invocation& invocation, Output& output);
int setCommand(const Invocation& invocation, Output& output);
int listAnimations(const Invocation& invocation, Output& output);
int duplicateAnimation(const Invocation& invocation, Output& output);
int moveAnimation(const Invocation& invocation, Output& output);
int removeAnimations(const Invocation& invocation, Output& output);
int sortAnimations(const Invocation& invocation, Output& output);
int alignAnimations(const Invocation& invocation, Output& output);
int copyBoxes(const Invocation& invocation, Output& output);
int optimizeAnimations(const Invocation& invocation, Output& output);
int importAnimations(const Invocation& invocation, Output& output);
int writeAnimationGif(const Invocation& invocation, Output& output);
int renderAnimation(const Invocation& invocation, Output& output);
int diffAnimations(const Invocation& invocation, Output& output);
int listMoves(const Invocation& invocation, Output& output);
int listReferences(const Invocation& invocation, Output& output);
int renameEverywhere(const Invocation& invocation, Output& output);
int listBoxes(const Invocation& invocation, Output& output);
int runInEngine(const Invocation& invocation, Output& output);
int backUp(const Invocation& invocation, Output& output);
int listBackups(const Invocation& invocation, Output& output);
int restore(const Invocation& invocation, Output& output);
int convertImages(const Invocation& invocation, Output& output);
int cropImages(const Invocation& invocation, Output& output);
int resizeImages(const Invocation& invocation, Output& output);
int rotateImages(const Invocation& invocation, Output& output);
int quantizeImages(const Invocation& invocation, Output& output);
int listSprites(const Invocation& invocation, Output& output);
int exportSprites(const Invocation& invocation, Output& output);
int importSprites(const Invocation& invocation, Output& output);
int setSpriteAxes(const Invocation& invocation, Output& output);
int renumberSprites(const Invocation& invocation, Output& output);
int recolorSprites(const Invocation& invocation, Output& output);
int makeSheet(const Invocation& invocation, Output& output);
int listPalettes(const Invocation& invocation, Output& output);
int exportPalettes(const Invocation& invocation, Output& output);
int applyPalette(const Invocation& invocation, Output& output);
int reorderPalette(const Invocation& invocation, Output& output);
int rampPalette(const Invocation& invocation, Output& output);
int listUses(const Invocation& invocation, Output& output);
int convertPalettes(const Invocation& invocation, Output& output);
int listSounds(const Invocation& invocation, Output& output);
int exportSounds(const Invocation& invocation, Output& output);
int importSounds(const Invocation& invocation, Output& output);
int tellOfSounds(const Invocation& invocation, Output& output);
int resampleSounds(const Invocation& invocation, Output& output);
int trimSounds(const Invocation& invocation, Output& output);
int normalizeSounds(const Invocation& invocation, Output& output);
int tellLoudness(const Invocation& invocation, Output& output);
int completerCommand(const Invocation& invocation, Output& output);
int helpCommand(const Invocation& invocation, Output& output);

}  // namespace Cli
