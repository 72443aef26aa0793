#pragma once

#include "core/run/launch_p.h"
#include "core/run/runresult.h"

#include <QObject>
#include <QProcess>

namespace Zorv {

/// A running engine, with stdout and stderr merged.
class EngineProcess : public QObject
{
    Q_OBJECT

public:
    EngineProcess();
    ~EngineProcess() override;

    /// Starts the engine and returns when it has ended, even if another process
    /// still holds its output. Events are processed meanwhile.
    void run(const Launch& launch);

    /// Asks the engine to quit, and kills it if it is still there after a few
    /// seconds.
    void stop();

    RunResult::Outcome outcome() const;
    int exitCode() const { return m_process.exitCode(); }

    /// The first error of the process; -1 if none.
    int error() const { return m_error; }

signals:
    void started();
    void output(const QByteArray& bytes);

private:
    void passOutput();

    QProcess m_process;
    int m_error = -1;
    bool m_stopped = false;
};

}  // namespace Zorv
