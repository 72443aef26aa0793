#include "core/run/engineprocess_p.h"

#include <QCoreApplication>
#include <QTimer>

namespace Zorv {

namespace {

constexpr int WaitMilliseconds = 10;
constexpr int KillMilliseconds = 3000;
constexpr qint64 PieceSize = 64 * 1024;

}  // namespace

EngineProcess::EngineProcess()
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    connect(&m_process, &QProcess::started, this, &EngineProcess::started);
    connect(&m_process, &QProcess::errorOccurred, this,
            [this](QProcess::ProcessError error) { m_error = m_error < 0 ? error : m_error; });
    // Forwards the output at once, even while a dialog of the host runs its own event loop. An
    // engine that prints faster than it is read is blocked by the pipe.
    connect(&m_process, &QProcess::readyRead, this, &EngineProcess::passOutput);
}

EngineProcess::~EngineProcess() = default;

void EngineProcess::run(const Launch& launch)
{
    m_process.setWorkingDirectory(launch.folder);
    m_process.setProgram(launch.program);
    m_process.setArguments(launch.arguments);
    m_process.start(QIODevice::ReadWrite);
    while (m_process.state() != QProcess::NotRunning) {
        m_process.waitForFinished(WaitMilliseconds);
        QCoreApplication::processEvents();
    }
    passOutput();
}

void EngineProcess::stop()
{
    if (m_stopped || m_process.state() == QProcess::NotRunning) {
        return;
    }
    m_stopped = true;
    m_process.terminate();
    QTimer::singleShot(KillMilliseconds, &m_process, &QProcess::kill);
}

RunResult::Outcome EngineProcess::outcome() const
{
    if (m_error == QProcess::FailedToStart) {
        return RunResult::NotStarted;
    }
    if (m_stopped) {
        return RunResult::Stopped;
    }
    return m_process.exitStatus() == QProcess::CrashExit ? RunResult::Crashed : RunResult::Ended;
}

void EngineProcess::passOutput()
{
    while (m_process.bytesAvailable() > 0) {
        emit output(m_process.read(PieceSize));
    }
}

}  // namespace Zorv
