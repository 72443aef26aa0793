#pragma once

#include <QString>
#include <QStringList>

namespace Zorv {

/// How a run of an engine ended.
struct RunResult
{
    enum Outcome {
        NotRun,          ///< nothing has been run yet
        AlreadyRunning,  ///< another engine is running
        NoEngine,        ///< no engine is configured
        GivenUp,         ///< the user chose no engine, or the host prevented the start
        NotFound,        ///< the executable does not exist
        NoMarks,         ///< the parameter string has no placeholder for a project
        NotStarted,      ///< the engine could not be started
        Crashed,
        Stopped,  ///< by `ParentProject::stopEngine()`
        Ended
    };

    Outcome outcome = NotRun;
    int exitCode = 0;         ///< exit code if `Ended`, number of the signal if `Crashed`
    QString program;          ///< the started program: the engine, or what runs it
    QStringList arguments;    ///< its arguments
    QString folder;           ///< its working folder
    QStringList failedFiles;  ///< files that could not be copied, relative to the game
    QStringList leftCopies;   ///< temporary copies that could not be removed
};

}  // namespace Zorv
