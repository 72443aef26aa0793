#pragma once

#include <QStringList>
#include <QVector>

namespace Cli {

class Output;

/// What the person has asked for.
struct Invocation
{
    QStringList operands;
    bool json = false;
    bool dryRun = false;
    bool noSafetyBackup = false;
    int codec = -1;      ///< of `Zorv::TextCodecs`; negative to detect
    QString engine;      ///< null if none was named
    QString parameters;  ///< for the engine; null if none were given
};

/// One command: a row of the table.
struct Command
{
    enum Option { NoOptions = 0, Json = 1, DryRun = 2, Encoding = 4, Engine = 8, NoSafety = 16 };
    static constexpr int Any = 1000000;

    const char* name;      ///< one or two words
    const char* operands;  ///< as the usage shows them
    int fewest;            ///< operands
    int most;
    int options;  ///< of `Option`
    int (*run)(const Invocation& invocation, Output& output);
    const char* summary;  ///< one line
    const char* details;  ///< several lines for `help`

    QString usage() const;
};

/// The rows in the order of `help`.
const QVector<Command>& commands();

/// The command that the arguments begin with, and in `words` of how many of
/// them its name is; null if they begin with none.
const Command* findCommand(const QStringList& arguments, int* words);

/// What stands behind the command's name. False, with `error`, if it is not
/// what the command takes.
bool parseArguments(const Command& command, const QStringList& arguments, Invocation* invocation,
                    QString* error);

int checkCommand(const Invocation& invocation, Output& output);
int treeCommand(const Invocation& invocation, Output& output);
int getCommand(const Invocation& invocation, Output& output);
int setCommand(const Invocation& invocation, Output& output);
int listAnimations(const Invocation& invocation, Output& output);
int duplicateAnimation(const Invocation& invocation, Output& output);
int moveAnimation(const Invocation& invocation, Output& output);
int removeAnimations(const Invocation& invocation, Output& output);
int sortAnimations(const Invocation& invocation, Output& output);
int runInEngine(const Invocation& invocation, Output& output);
int backUp(const Invocation& invocation, Output& output);
int listBackups(const Invocation& invocation, Output& output);
int restore(const Invocation& invocation, Output& output);
int completerCommand(const Invocation& invocation, Output& output);
int helpCommand(const Invocation& invocation, Output& output);

}  // namespace Cli
