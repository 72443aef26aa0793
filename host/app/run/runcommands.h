#pragma once

#include "app/window/part.h"

#include <QObject>

#include <functional>

namespace Family {
class GameProgram;
}

namespace Zorv {
struct RunResult;
}

namespace App {

class OutputPanel;
struct WindowServices;

/// Starts the engine on the work in progress, shows what it prints, and ends it.
class RunCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit RunCommands(const WindowServices& services);

    OutputPanel* panel() const { return m_panel; }

    /// Returns when the engine has ended. The window goes on meanwhile.
    void run();

    /// Asks the engine to end, and ends it if it does not.
    void stop();

    bool isRunning() const { return m_runs > 0; }

    QVector<ActionRow> actions() override;
    void showGame(Family::FamilyParentProject* game) override;
    void reconfig() override;

    /// Asks whether a running engine is to be ended.
    bool mayEnd(const std::function<void()>& then) override;

    /// Offers to remove the temporary copies that a process that is gone has left.
    static void offerLeftovers();

private:
    bool canRun() const;
    bool settleProgram(Family::GameProgram* program) const;
    void tell(const Zorv::RunResult& result);
    void noteEnd(const Zorv::RunResult& result);

    const WindowServices& m_services;
    OutputPanel* m_panel;
    int m_runs = 0;
    std::function<void()> m_then;
};

}  // namespace App
