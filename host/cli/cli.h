#pragma once

#include <QStringList>

namespace Cli {

/// The exit status of the program.
enum ExitStatus {
    Fine = 0,
    ProblemsFound = 1,             ///< only from `check`
    Different = ProblemsFound,     ///< only from `diff`
    NothingFound = ProblemsFound,  ///< only from `find`
    WrongUsage = 2,
    NotDone = 3  ///< a file cannot be read or written, a path does not exist, ...
};

/// True if the arguments (without the program name) are for the command line: they start with a
/// command, one of its options, or something that could be meant as one. A path that exists is for
/// the window.
/// meant as one. A path that exists is for the window.
bool isCommand(const QStringList& arguments);

/// Runs a command and returns the exit status. Needs a `QGuiApplication` on any platform. Results
/// go to standard output, errors to standard error.
int runCommand(const QStringList& arguments);

}  // namespace Cli
