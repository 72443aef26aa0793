#pragma once

#include <QString>
#include <QStringList>

namespace Zorv {

/// How a run of an engine ended.
struct RunResult
{
    enum Outcome {
        NotRun,          ///< nothing was run yet
        AlreadyRunning,  ///< another engine runs
        NoEngine,        ///< no engine is configured
        GivenUp,         ///< the person chose no engine, or the host did not let it start
        NotFound,        ///< the executable is not there
        NoMarks,         ///< the parameter string asks for no project
        NotStarted,      ///< the engine could not be started
        Crashed,
        Stopped,  ///< by `ParentProject::stopEngine()`
        Ended
    };

    Outcome outcome = NotRun;
    int exitCode = 0;         ///< of an engine that has `Ended`; of one that has `Crashed` the
                              ///< number of the signal
    QString program;          ///< what was started: the engine, or what runs it
    QStringList arguments;    ///< its arguments
    QString folder;           ///< its working folder
    QStringList failedFiles;  ///< what could not be copied for it, relative to the game
    QStringList leftCopies;   ///< temporary copies that could not be removed
};

}  // namespace Zorv
