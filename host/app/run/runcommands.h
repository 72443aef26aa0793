#pragma once

#include <QObject>

#include <functional>

namespace Family {
class GameProgram;
}

namespace Zorv {
struct RunResult;
}

namespace App {

class MainWindow;
class OutputPanel;

/// Starts the engine on the work in progress, shows what it prints, and ends it.
class RunCommands : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit RunCommands(MainWindow* window);

    OutputPanel* panel() const { return m_panel; }

    /// Returns when the engine has ended. The window goes on meanwhile.
    void run();

    /// Asks the engine to end, and ends it if it does not.
    void stop();

    bool isRunning() const { return m_runs > 0; }

    /// True if what is open may be closed: no engine runs on it. Else asks whether
    /// the engine is to be ended, and is false; `then` is called when it has ended.
    bool mayClose(const std::function<void()>& then);

    /// Offers to remove the temporary copies that a process that is gone has left.
    static void offerLeftovers();

signals:
    void stateChanged();

private:
    void followGame();
    bool settleProgram(Family::GameProgram* program) const;
    void tell(const Zorv::RunResult& result);
    void noteEnd(const Zorv::RunResult& result);

    MainWindow* m_window;
    OutputPanel* m_panel;
    int m_runs = 0;
    std::function<void()> m_then;
};

}  // namespace App
