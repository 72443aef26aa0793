#include "cli/cli.h"
#include "cli/command.h"
#include "cli/notedsignals.h"
#include "cli/output.h"
#include "family/check/check.h"
#include "family/project/familyenginemodel.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/gameprogram.h"
#include "family/project/unreachable.h"
#include "operations/agreements.h"
#include "operations/engines.h"
#include "operations/hostinterface.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/run/temporarycopies.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <map>
#include <memory>

namespace Cli {

namespace {

using Family::FamilyParentProject;
using Family::FamilyProject;
using Family::GameProgram;
using Operations::Agreement;
using Zorv::EngineInfo;
using Zorv::RunResult;

constexpr int PollMilliseconds = 20;
constexpr int SignalStatus = 128;  // plus the number of the signal, as in a shell

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// The open projects of the command, each in its game.
class RunHost final : public Operations::HostInterface
{
public:
    ~RunHost() override
    {
        for (FamilyProject* project : qAsConst(m_projects)) {
            project->release();
            delete project;
        }
    }

    bool open(const QString& name, QString* error);
    FamilyParentProject* game() const
    {
        return static_cast<FamilyParentProject*>(m_projects.first()->parent());
    }

    unsigned projectCount() const override { return unsigned(m_projects.size()); }
    Zorv::Project* projectAt(unsigned index) const override { return m_projects.value(int(index)); }
    Zorv::Project* currentProject() const override { return m_projects.value(0); }

private:
    std::map<QString, std::unique_ptr<FamilyParentProject>> m_games;
    QList<FamilyProject*> m_projects;
};

/// The main file of a folder with one project; any other name is unchanged.
QString mainFileOf(const QString& name)
{
    const QStringList files =
        QFileInfo(name).isDir() ? FamilyParentProject::mainFiles(name) : QStringList();
    return files.size() == 1 ? files.first() : name;
}

bool RunHost::open(const QString& name, QString* error)
{
    const QString mainFile = mainFileOf(name);
    if (QFileInfo(mainFile).isDir()) {
        *error =
            Family::orUnreachable(Text::tr("'%1' is a folder. Name one of the main files in it, "
                                           "such as 'hero.character' or 'yard.stage'."),
                                  mainFile);
        return false;
    }
    if (!QFileInfo(mainFile).isFile()) {
        *error = Family::orUnreachable(Text::tr("There is no file '%1'."), mainFile);
        return false;
    }
    const QString folder = Family::checkedFolder(mainFile);
    if (folder.isEmpty()) {
        *error = Text::tr("'%1' is no main file. Expected one such as 'hero.character' or "
                          "'yard.stage'.")
                     .arg(mainFile);
        return false;
    }
    auto& game = m_games[folder];
    if (!game) {
        game = std::make_unique<FamilyParentProject>(folder);
    }
    const QString path = QFileInfo(mainFile).absoluteFilePath();
    FamilyProject* project = FamilyProject::open(game.get(), path, error);
    if (!project) {
        return false;
    }
    m_projects.append(project);
    for (const QString& problem : project->loadErrors()) {
        complain(problem);
    }
    return true;
}

/// Forwards messages only until the engine has ended: the result is reported in other words.
class RunDialogs final : public Zorv::Dialogs
{
public:
    RunDialogs() : m_outer(instance()) { setInstance(this); }
    ~RunDialogs() override { setInstance(m_outer); }

    void setQuiet() { m_quiet = true; }

    Button warning(const QString& title, const QString& text, Buttons buttons,
                   Button defaultButton) override
    {
        return m_outer->warning(title, text, buttons, defaultButton);
    }

    void error(const QString& title, const QString& text) override
    {
        if (!m_quiet) {
            m_outer->error(title, text);
        }
    }

    int runTarget(QWidget* parent, QAbstractItemModel* model, unsigned row,
                  QRect* geometry) override
    {
        return m_outer->runTarget(parent, model, row, geometry);
    }

private:
    Zorv::Dialogs* m_outer;
    bool m_quiet = false;
};

// As in a shell, a plain name is not a file in the current folder, because that may contain
// untrusted programs.
QString programPath(const QString& name)
{
    if (!name.contains(QLatin1Char('/'))) {
        return QStandardPaths::findExecutable(name);
    }
    return QFileInfo(name).isFile() ? QFileInfo(name).absoluteFilePath() : QString();
}

/// The path relative to the current folder, if the file is inside it.
QString shownPath(const QString& path)
{
    const QString here = QDir::currentPath() + QLatin1Char('/');
    return path.startsWith(here) ? path.mid(here.size()) : path;
}

/// The engine that `--engine` names: a configured one, otherwise a program.
bool findEngine(const QString& name, const FamilyParentProject* game, int kind,
                QVector<EngineInfo>* engines, QString* error)
{
    const auto named = std::find_if(engines->cbegin(), engines->cend(),
                                    [&name](const EngineInfo& e) { return e.name == name; });
    if (named != engines->cend()) {
        *engines = {*named};
        return true;
    }
    const QString path = programPath(name);
    if (path.isEmpty()) {
        const bool isFile = !name.contains(QLatin1Char('/')) && QFileInfo(name).isFile();
        *error = isFile
                     ? Text::tr("There is no engine '%1', neither in the settings nor among the "
                                "programs of the system. Write './%1' for the file of that name.")
                     : Text::tr("There is no engine '%1', neither in the settings nor as a "
                                "program.");
        *error = error->arg(name);
        return false;
    }
    *engines = {{name, path, game->runParameters(kind), {}}};
    return true;
}

/// Whether the program of the game folder may be started; if not, `error` says why.
bool isTrusted(const Invocation& invocation, const GameProgram& program, QSettings& settings,
               QString* error)
{
    const QString shown = shownPath(program.path());
    const Agreement agreement = Operations::agreementTo(program, settings);
    if (program.checksum().isEmpty()) {
        *error = Text::tr("'%1' cannot be read, so it is not started. Name another engine with "
                          "'--engine'.")
                     .arg(shown);
    } else if (!invocation.trusts && agreement != Agreement::Given) {
        *error =
            agreement == Agreement::Outdated
                ? Text::tr("'%1', a program of the game folder, has changed since you agreed to "
                           "it, so it is not started.")
                : Text::tr("'%1' is a program of the game folder, and you have not agreed to "
                           "it, so it is not started.");
        *error = error->arg(shown) +
                 Text::tr(" If you trust whoever made it, add '--trust'; or name another engine "
                          "with '--engine'.");
    }
    return error->isEmpty();
}

/// Puts the possible engines into the model.
bool chooseEngines(const Invocation& invocation, const RunHost& host, QSettings& settings,
                   QString* error)
{
    const FamilyParentProject* game = host.game();
    QVector<EngineInfo> engines = Operations::loadEngines(settings);
    if (!invocation.engine.isNull() &&
        !findEngine(invocation.engine, game, host.currentProject()->kind(), &engines, error)) {
        return false;
    }
    for (EngineInfo& engine : engines) {
        engine.parameters =
            invocation.parameters.isNull() ? engine.parameters : invocation.parameters;
    }
    auto* const model = Family::FamilyEngineModel::instance();
    model->setPlayerOffered(engines.isEmpty() && invocation.parameters.isNull());
    if (engines.isEmpty() && model->engineCount() == 0) {
        *error = Text::tr("No engine is configured. Name a program with '--engine'.");
    } else if (engines.size() == 1) {
        *error = Operations::engineProblem(engines.first());
    }
    model->setEngines(engines);
    return error->isEmpty();
}

/// Prints what went wrong; returns the status.
int tell(const RunResult& result)
{
    for (const QString& file : result.failedFiles) {
        complain(Text::tr("The engine did not get the file '%1': it cannot be copied.").arg(file));
    }
    for (const QString& path : result.leftCopies) {
        complain(Text::tr("Cannot remove '%1', a copy for the engine. Remove it.").arg(path));
    }
    switch (result.outcome) {
    case RunResult::Ended:
        return result.exitCode == Fine && !result.failedFiles.isEmpty() ? int(NotDone)
                                                                        : result.exitCode;
    case RunResult::NotStarted:
        complain(result.program.isEmpty()
                     ? Text::tr("'%1' is no program of this system, and there is no 'wine'.")
                           .arg(result.arguments.value(0))
                     : Text::tr("Cannot start '%1'. Check that it may be executed.")
                           .arg(result.program));
        return NotDone;
    case RunResult::Crashed:
        if (NotedSignals::received() == 0) {
            complain(Text::tr("The engine '%1' has crashed.").arg(result.program));
            return SignalStatus + result.exitCode;
        }
        break;
    default:
        break;
    }
    return NotedSignals::received() == 0 ? int(NotDone) : NotedSignals::exitStatus();
}

/// Removes temporary copies of runs that were killed.
void removeLeftCopies()
{
    const QList<Zorv::TemporaryCopies::Leftover> leftovers = Zorv::TemporaryCopies::leftovers();
    for (const Zorv::TemporaryCopies::Leftover& leftover : leftovers) {
        const QStringList stays = Zorv::TemporaryCopies::removeLeftover(leftover);
        for (const QString& path : stays) {
            complain(Text::tr("Cannot remove '%1', a copy for the engine. Remove it.").arg(path));
        }
    }
}

int runEngine(FamilyParentProject* game, Output& output)
{
    const NotedSignals signalsNoted(NotedSignals::Unlimited);
    RunDialogs dialogs;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, game, [game] {
        if (NotedSignals::received() != 0) {
            game->stopEngine();
        }
    });
    QObject::connect(game, &Zorv::ParentProject::engineOutput, &poll,
                     [game, &output](const QByteArray& bytes) {
                         if (!output.writeBytes(bytes)) {
                             game->stopEngine();
                         }
                     });
    QObject::connect(game, &Zorv::ParentProject::engineFinished, &poll,
                     [&dialogs] { dialogs.setQuiet(); });
    poll.start(PollMilliseconds);
    game->run();
    return tell(game->runResult());
}

}  // namespace

int runInEngine(const Invocation& invocation, Output& output)
{
    removeLeftCopies();
    RunHost host;
    setGlobalInterface(&host);
    QString error;
    for (const QString& file : invocation.operands) {
        if (!host.open(file, &error)) {
            complain(error);
            return NotDone;
        }
    }
    const GameProgram program =
        invocation.engine.isNull() ? GameProgram(host.game()->absolutePath()) : GameProgram();
    QSettings settings;
    if (program.isThere() ? !isTrusted(invocation, program, settings, &error)
                          : !chooseEngines(invocation, host, settings, &error)) {
        complain(error);
        return NotDone;
    }
    if (program.isThere() && !invocation.parameters.isNull()) {
        complain(Text::tr("'%1' gets the parameters of its family; '--parameters' are for other "
                          "engines.")
                     .arg(shownPath(program.path())));
    }
    const Operations::NamedProgram named(program);
    return runEngine(host.game(), output);
}

}  // namespace Cli
