#pragma once

#include "core/run/launch_p.h"
#include "core/run/runresult.h"

#include <QObject>
#include <QProcess>

namespace Zorv {

/// One engine that runs, with its two channels as one.
class EngineProcess : public QObject
{
    Q_OBJECT

public:
    EngineProcess();
    ~EngineProcess() override;

    /// Starts the engine and returns when it has ended, whoever still holds its
    /// channels; events are processed meanwhile.
    void run(const Launch& launch);

    /// Asks the engine to end, and kills it if it does not within seconds.
    void stop();

    RunResult::Outcome outcome() const;
    int exitCode() const { return m_process.exitCode(); }

    /// The first error of the process; -1 without one.
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
