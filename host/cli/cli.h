#pragma once

#include <QStringList>

namespace Cli {

/// The status with which the program ends.
enum ExitStatus {
    Fine = 0,
    ProblemsFound = 1,             ///< of `check` alone
    Different = ProblemsFound,     ///< of `diff` alone
    NothingFound = ProblemsFound,  ///< of `find` alone
    WrongUsage = 2,
    NotDone = 3  ///< a file cannot be read or written, a path names nothing, ...
};

/// True if the arguments, without the program's name, are for the command line:
/// they begin with a command or an option of it, or with anything that could be
/// meant as one. A path that exists is for the window.
bool isCommand(const QStringList& arguments);

/// Runs a command to its end; gives the exit status. Needs a `QGuiApplication`,
/// of any platform. Answers go to standard output, failures to standard error.
int runCommand(const QStringList& arguments);

}  // namespace Cli
