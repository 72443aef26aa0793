#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

namespace Family {
class FamilyProject;
class GameProgram;
}  // namespace Family

namespace Zorv {
struct RunResult;
}

namespace App {

class OutputPanel;
class PlayerLink;
struct WindowServices;

/// Starts the engine on the work in progress, shows what it prints, and ends it.
class RunCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit RunCommands(const WindowServices& services);
    ~RunCommands() override;

    OutputPanel* panel() const { return m_panel; }

    /// Returns when the engine has ended. The window goes on meanwhile. While the player runs it
    /// gets what is on the screen now, in place of what it has.
    void run();

    /// Asks the engine to end, and ends it if it does not.
    void stop();

    bool isRunning() const { return m_runs > 0; }

    QVector<ActionRow> actions() override;
    void showGame(Family::FamilyParentProject* game) override;
    void gameChanged() override;
    void reconfig() override;

    /// Asks whether a running engine is to be ended.
    bool mayEnd(const std::function<void()>& then) override;

    /// Offers to remove the temporary copies that a process that is gone has left.
    static void offerLeftovers();

private:
    bool canRun() const;
    bool isPlayerThere() const;
    void startEngine(Family::FamilyParentProject* game);
    void playAgain();
    void showLine(const QString& file, int line);
    bool settleProgram(Family::GameProgram* program) const;
    void tell(const Zorv::RunResult& result);
    void noteEnd(const Zorv::RunResult& result);

    const WindowServices& m_services;
    OutputPanel* m_panel;
    int m_runs = 0;
    std::unique_ptr<PlayerLink> m_link;        ///< while an engine runs
    QPointer<Family::FamilyProject> m_played;  ///< what the player shows
    QTimer m_playSoon;                         ///< when all that is saved at once is
    std::function<void()> m_then;
};

}  // namespace App
