#include "app/run/runcommands.h"

#include "app/run/outputpanel.h"
#include "app/run/outputtext.h"
#include "app/run/playerlink.h"
#include "app/session/gamesession.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/project/familyenginemodel.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/filereference.h"
#include "family/project/gameprogram.h"
#include "operations/agreements.h"
#include "operations/hostinterface.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/fileinput.h>
#include <zorv/core/run/temporarycopies.h>

#include <QApplication>
#include <QDir>
#include <QSettings>

#include <utility>

// `run()` returns when the engine has ended: the game runs an event loop meanwhile. So every call
// in it that can open a dialog or run the engine may return after the game, or this object, was
// destroyed; guarded pointers check that.
//
// While the player is connected, `run()` and saving only send it a new copy of the project.
// `m_playSoon` merges several saves into one copy.

namespace App {

using Zorv::Dialogs;
using Zorv::RunResult;

namespace {

constexpr int MaxNames = 12;
constexpr int LaterMilliseconds = 200;

QString namesOf(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths.mid(0, MaxNames)) {
        names.append(QDir::toNativeSeparators(path));
    }
    if (paths.size() > MaxNames) {
        names.append(RunCommands::tr("and %n more", nullptr, paths.size() - MaxNames));
    }
    return names.join(QLatin1Char('\n'));
}

/// A name on one line. A folder name with line breaks could otherwise pretend to be text of this
/// window.
QString shownName(const QString& name)
{
    OutputText signs;
    const QString shown = signs.decode(name.toUtf8()) + signs.finish();
    return QString(shown).replace(QLatin1Char('\n'), QLatin1String("^J"));
}

/// The engine to start if the user refuses the game's own program.
QString otherEngine()
{
    const auto* engines = Family::FamilyEngineModel::instance();
    switch (engines->engineCount()) {
    case 0:
        return {};
    case 1:
        return RunCommands::tr("No starts the engine '%1' of the options in its place.")
            .arg(shownName(engines->engine(0).name));
    default:
        return RunCommands::tr("No lets you choose an engine of the options in its place.");
    }
}

Dialogs::Button askToStart(const QString& program, Operations::Agreement agreement)
{
    const QString other = otherEngine();
    QStringList parts{
        RunCommands::tr(
            "The folder of this game has an engine of its own, which would be started:"),
        program,
        RunCommands::tr("A program can do everything that you can on this computer. Start it only "
                        "if you trust whoever made it. You are asked again when it has changed.")};
    if (agreement == Operations::Agreement::Outdated) {
        parts.insert(2, RunCommands::tr("It has changed since you last agreed to it."));
    }
    if (!other.isEmpty()) {
        parts.append(other);
    }
    parts.append(RunCommands::tr("Start it?"));
    const Dialogs::Buttons yesOrNo = Dialogs::Yes | Dialogs::No;
    return Dialogs::instance()->question(
        RunCommands::tr("Engine"), parts.join(QLatin1String("\n\n")),
        other.isEmpty() ? yesOrNo : yesOrNo | Dialogs::Cancel, Dialogs::No);
}

}  // namespace

RunCommands::RunCommands(const WindowServices& services)
    : QObject(services.window), m_services(services), m_panel(new OutputPanel)
{
    m_playSoon.setSingleShot(true);
    connect(&m_playSoon, &QTimer::timeout, this, &RunCommands::playAgain);
}

RunCommands::~RunCommands() = default;

QVector<ActionRow> RunCommands::actions()
{
    const Members<RunCommands> on(this);
    // clang-format off
    return {
        {"run",         "tools.run", QT_TRANSLATE_NOOP("App::Actions", "R&un in engine"),  "F5",       on(&RunCommands::run),  on(&RunCommands::canRun)},
        {"stop_engine", "tools.run", QT_TRANSLATE_NOOP("App::Actions", "&End the engine"), "Shift+F5", on(&RunCommands::stop), on(&RunCommands::isRunning), nullptr, ActionRow::Button, "stop"},
    };
    // clang-format on
}

bool RunCommands::canRun() const
{
    return m_services.parts->project() && (!isRunning() || isPlayerThere());
}

bool RunCommands::isPlayerThere() const
{
    return m_link && m_link->isConnected();
}

void RunCommands::reconfig()
{
    m_panel->reconfig();
}

void RunCommands::showGame(Family::FamilyParentProject* game)
{
    using Zorv::ParentProject;
    if (!game) {
        return;
    }
    connect(game, &ParentProject::engineStarted, this,
            [this](const QString& program, const QStringList& arguments) {
                m_panel->addNote(
                    tr("Started: %1").arg((QStringList{program} + arguments).join(' ')));
                m_panel->parentWidget()->show();
                m_services.parts->updateSoon();
            });
    connect(game, &ParentProject::engineOutput, m_panel, &OutputPanel::add);
}

void RunCommands::run()
{
    const QPointer<Family::FamilyParentProject> game = m_services.session->game();
    if (!game) {
        return;
    }
    if (isPlayerThere()) {
        Zorv::FileInput::takeOf(game);
        m_played = m_services.parts->project();
        m_playSoon.start(0);
        return;
    }
    const QPointer<RunCommands> self = this;
    Family::GameProgram program;
    if (!game->isRunning() && (!settleProgram(&program) || !self || !game)) {
        return;
    }
    ++m_runs;
    m_services.parts->updateSoon();
    {
        const Operations::NamedProgram named(program);
        // After this call, everything may be closed.
        startEngine(game);
    }
    if (!self) {
        return;
    }
    --m_runs;
    if (game && m_runs == 0) {
        noteEnd(game->runResult());
        tell(game->runResult());
    }
    m_services.parts->updateSoon();
    if (m_runs == 0 && m_then) {
        QTimer::singleShot(0, this, std::exchange(m_then, nullptr));
    }
}

/// If the engine is the player, it connects to the window by this socket.
void RunCommands::startEngine(Family::FamilyParentProject* game)
{
    if (game->isRunning()) {
        game->run();
        return;
    }
    const QPointer<RunCommands> self = this;
    m_played = m_services.parts->project();
    m_link = std::make_unique<PlayerLink>();
    connect(m_link.get(), &PlayerLink::changed, this, [this] { m_services.parts->updateSoon(); });
    connect(m_link.get(), &PlayerLink::filesChanged, this, [this] { m_playSoon.start(0); });
    connect(m_link.get(), &PlayerLink::lineAsked, this, &RunCommands::showLine,
            Qt::QueuedConnection);
    game->setPlayerSocket(m_link->name());
    game->run();
    if (self) {
        m_link.reset();
    }
}

void RunCommands::gameChanged()
{
    if (isPlayerThere()) {
        m_playSoon.start(0);
    }
}

/// Sends the player a new copy of its project, with all unsaved changes. If the project was closed,
/// the player loads it from its file.
void RunCommands::playAgain()
{
    const QPointer<RunCommands> self = this;
    const QPointer<Family::FamilyParentProject> game = m_services.session->game();
    if (!game || !isPlayerThere()) {
        return;
    }
    if (QApplication::activeModalWidget()) {
        // A dialog is open: wait for its result.
        m_playSoon.start(LaterMilliseconds);
        return;
    }
    if (!m_played) {
        m_link->play({}, {}, false);
        return;
    }
    Zorv::ParentProject::RunCopy copy;
    QStringList failed;
    const bool isCopied = game->copyForEngine(m_played, &copy, &failed);
    if (!self || !isPlayerThere()) {
        return;
    }
    if (isCopied) {
        m_link->play(copy.copy, copy.original,
                     Family::FileKind(copy.kind) == Family::FileKind::Stage);
        m_services.status->showPassing(tr("The player goes on with what is here now."));
    }
    if (!failed.isEmpty()) {
        Dialogs::instance()->warning(
            tr("Engine"), tr("These files could not be copied for the player, which goes on "
                             "without what is new in them:") +
                              QLatin1String("\n\n") + namesOf(failed));
    }
}

/// Shows a line requested by the player. Ignored while a dialog is open: whoever answers it looks
/// at the window anyway.
void RunCommands::showLine(const QString& file, int line)
{
    const Family::FamilyParentProject* game = m_services.session->game();
    const bool isInGame = game && Family::staysInside(game->absolutePath(), file);
    const QPointer<RunCommands> self = this;
    if (QApplication::activeModalWidget() || !game ||
        (isInGame && !m_services.jumps->openFile(file)) || !self) {
        return;
    }
    // An unsaved project has no file, only the copy.
    const bool isUnnamed = !isInGame && m_played && m_played->fileName().isEmpty();
    Family::FamilyDocument* document = isUnnamed  ? m_played->mainDocument()
                                       : isInGame ? m_services.session->document(file, m_played)
                                                  : nullptr;
    if (!document) {
        return;
    }
    m_services.jumps->showPlace(document, qMax(line - 1, 0), 0, 0);
    QMainWindow* const window = m_services.window;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

/// A program that comes with the game folder is only started if the user agrees. False if there is
/// nothing else to start.
bool RunCommands::settleProgram(Family::GameProgram* program) const
{
    const Family::GameProgram found(m_services.session->folder());
    const auto* host = dynamic_cast<Operations::HostInterface*>(Zorv::Interface::instance());
    if (!found.isThere() || !host || !host->settings()) {
        return true;
    }
    const QString shown = shownName(QDir::toNativeSeparators(found.path()));
    const bool hasOthers = Family::FamilyEngineModel::instance()->engineCount() > 0;
    if (found.checksum().isEmpty()) {
        Dialogs::instance()->warning(tr("Engine"),
                                     tr("%1 cannot be read, so it is not started.").arg(shown));
        return hasOthers;
    }
    const Operations::Agreement agreement = Operations::agreementTo(found, *host->settings());
    const Dialogs::Button answer =
        agreement == Operations::Agreement::Given ? Dialogs::Yes : askToStart(shown, agreement);
    if (answer == Dialogs::Yes) {
        Operations::agreeTo(found, *host->settings());
        *program = found;
        return true;
    }
    return answer == Dialogs::No && hasOthers;
}

void RunCommands::stop()
{
    if (Family::FamilyParentProject* game = m_services.session->game()) {
        game->stopEngine();
    }
}

bool RunCommands::mayEnd(const std::function<void()>& then)
{
    if (!isRunning()) {
        return true;
    }
    const int answer = Dialogs::instance()->choose(
        tr("Engine"), tr("The engine is still running on the work in this window."),
        {tr("End the engine")}, 0);
    if (answer == 0 && isRunning()) {
        m_then = then;
        stop();
    }
    return answer == 0 && !isRunning();
}

void RunCommands::noteEnd(const RunResult& result)
{
    switch (result.outcome) {
    case RunResult::Ended:
        m_panel->addNote(tr("Ended with code %1.").arg(result.exitCode));
        break;
    case RunResult::Crashed:
        m_panel->addNote(tr("The engine has crashed."));
        break;
    case RunResult::Stopped:
        m_panel->addNote(tr("Ended by you."));
        break;
    case RunResult::NotStarted:
        m_panel->addNote(tr("Could not be started: %1").arg(result.program));
        break;
    default:
        break;
    }
}

void RunCommands::tell(const RunResult& result)
{
    if (!result.failedFiles.isEmpty()) {
        Dialogs::instance()->warning(
            tr("Engine"), tr("The engine ran without these files, which could not be copied for "
                             "it:") +
                              QLatin1String("\n\n") + namesOf(result.failedFiles));
    }
    if (!result.leftCopies.isEmpty()) {
        Dialogs::instance()->warning(
            tr("Engine"), tr("These temporary copies could not be removed. They are offered for "
                             "removal at the next start:") +
                              QLatin1String("\n\n") + namesOf(result.leftCopies));
    }
}

void RunCommands::offerLeftovers()
{
    using Zorv::TemporaryCopies;
    const QList<TemporaryCopies::Leftover> all = TemporaryCopies::leftovers();
    QStringList paths;
    for (const TemporaryCopies::Leftover& leftover : all) {
        paths += leftover.paths;
    }
    if (paths.isEmpty() ||
        Dialogs::instance()->choose(
            tr("Temporary copies"),
            tr("An earlier run of the engine was cut off. These temporary copies of it are left:") +
                QLatin1String("\n\n") + namesOf(paths),
            {tr("Remove them")}, 0) != 0) {
        return;
    }
    QStringList left;
    for (const TemporaryCopies::Leftover& leftover : all) {
        left += TemporaryCopies::removeLeftover(leftover);
    }
    if (!left.isEmpty()) {
        Dialogs::instance()->warning(tr("Temporary copies"), tr("These could not be removed:") +
                                                                 QLatin1String("\n\n") +
                                                                 namesOf(left));
    }
}

}  // namespace App
