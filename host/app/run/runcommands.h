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

/// Starts the engine with the current work, shows its output, and stops it.
class RunCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window.
    explicit RunCommands(const WindowServices& services);
    ~RunCommands() override;

    OutputPanel* panel() const { return m_panel; }

    /// Returns when the engine has ended; the window stays usable meanwhile. If the player is
    /// already running, it gets the current state instead.
    void run();

    /// Asks the engine to end, and kills it if it does not.
    void stop();

    bool isRunning() const { return m_runs > 0; }

    QVector<ActionRow> actions() override;
    void showGame(Family::FamilyParentProject* game) override;
    void gameChanged() override;
    void reconfig() override;

    /// Asks whether to end a running engine.
    bool mayEnd(const std::function<void()>& then) override;

    /// Offers to remove temporary copies left behind by a process that no longer runs.
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
    std::unique_ptr<PlayerLink> m_link;        ///< only while an engine runs
    QPointer<Family::FamilyProject> m_played;  ///< project shown by the player
    QTimer m_playSoon;                         ///< merges files saved together into one update
    std::function<void()> m_then;
};

}  // namespace App
