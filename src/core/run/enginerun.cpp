#include "core/run/enginerun_p.h"

#include "core/dialogs/dialogs.h"
#include "core/enginemodel.h"
#include "core/fileinput.h"
#include "core/filesystemarchive.h"
#include "core/interface.h"
#include "core/lazysync_p.h"
#include "core/parentproject_p.h"
#include "core/projectfile.h"
#include "core/run/engineprocess_p.h"
#include "core/run/launch_p.h"
#include "core/run/runparameters_p.h"

#include <QDir>
#include <QFileInfo>
#include <QRect>
#include <QScopedValueRollback>
#include <QUuid>

#include <utility>

namespace Zorv {

namespace {

QVariant hostOption(const QString& key)
{
    const Interface* host = Interface::instance();
    return host ? host->option(key) : QVariant();
}

void setHostOption(const QString& key, const QVariant& value)
{
    if (Interface* host = Interface::instance()) {
        host->setOption(key, value);
    }
}

/// Lets the user choose a row; -1 if cancelled. The dialog's position is saved in both cases.
int askForRow(EngineModel* engines, unsigned row)
{
    const QString key = QStringLiteral("project_run_geometry");
    static QRect geometry = hostOption(key).toRect();
    const Interface* host = Interface::instance();
    const int chosen = Dialogs::instance()->runTarget(host ? host->mainWindow() : nullptr, engines,
                                                      row, &geometry);
    setHostOption(key, geometry);
    return chosen;
}

/// The project for a placeholder. Null if fewer projects are open.
Project* markedProject(unsigned mark)
{
    const Interface* host = Interface::instance();
    if (!host || mark > host->projectCount()) {
        return nullptr;
    }
    return mark == 0 ? host->currentProject() : host->projectAt(mark - 1);
}

QString withSlash(const QString& folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

/// A project that was never saved has no folder in the game.
QString placeOf(const Project* project)
{
    return project->fileName().isEmpty() ? QString() : project->basePath();
}

}  // namespace

EngineRun::EngineRun(ParentProjectPrivate* tree) : m_tree(tree) {}

EngineRun::~EngineRun() = default;

void EngineRun::run()
{
    if (!m_tree->runnable) {
        refuse(RunResult::AlreadyRunning,
               ParentProject::tr("Oops, you can run only one instance of yhe engine at "
                                 "the same time."));
        return;
    }
    if (findEngine() && m_tree && copyProjects()) {
        startEngine();
    }
}

/// Finds the engine: the one in the game folder, otherwise a configured one.
bool EngineRun::findEngine()
{
    ParentProject* tree = m_tree->model;
    EngineModel* engines = tree->engineModel();
    m_executable = engines ? tree->absolutePath() + engines->executableName() : QString();
    if (QFileInfo(m_executable).isFile()) {
        const QList<Project*> projects = tree->openedProjects();
        m_parameters =
            projects.isEmpty() ? QString() : tree->runParameters(projects.first()->kind());
    } else if (!chooseEngine(engines)) {
        return false;
    }
    const QFileInfo executable(m_executable);
    if (!executable.isFile()) {
        m_result.outcome = RunResult::NotFound;
        keepResult();
        Dialogs::instance()->error(ParentProject::tr("Error!"),
                                   ParentProject::tr("Executable not found!"));
        return false;
    }
    m_executable = executable.absoluteFilePath();
    m_folder = withSlash(tree->runFolder(m_executable));
    return true;
}

bool EngineRun::chooseEngine(EngineModel* engines)
{
    const int count = engines ? engines->engineCount() : 0;
    if (count == 0) {
        return refuse(
            RunResult::NoEngine,
            ParentProject::tr("Oops, you need to add an engine first. Do it in Tools / Options."));
    }
    const QString lastKey = QStringLiteral("last_") + engines->identifier();
    // With a single engine there is nothing to choose. It is still remembered as the last choice.
    const int row = count == 1 ? 0 : askForRow(engines, hostOption(lastKey).toUInt());
    const EngineModel* now = m_tree ? m_tree->model->engineModel() : nullptr;
    if (row < 0 || !now) {
        m_result.outcome = RunResult::GivenUp;
        keepResult();
        return false;
    }
    setHostOption(lastKey, row);
    const EngineInfo engine = now->engine(unsigned(row));
    m_executable = engine.executable;
    m_parameters = engine.parameters;
    return true;
}

bool EngineRun::copyProjects()
{
    const QVector<unsigned> marks = runMarks(m_parameters);
    if (marks.isEmpty()) {
        return refuse(RunResult::NoMarks,
                      ParentProject::tr("Oops, wrong parameters on the engine configuration. "
                                        "Check it in Tools / Options."));
    }
    FileInput::takeOf(m_tree->model);
    if (!m_tree) {
        return false;  // closed behind a message about a canvas that could not be saved
    }
    m_copies.push_back(std::make_unique<TemporaryCopies>(m_folder));
    m_tree->runnable = false;
    for (int i = 0; i < marks.size() && m_tree; ++i) {
        if (Project* project = markedProject(marks.at(i))) {
            copyProject(marks.at(i), project, QStringLiteral("zorvs_%1").arg(i));
        }
    }
    return m_tree;
}

/// Writes the copy of a project into a folder that is temporary as a whole. If the engine family
/// needs the files among those of the engine, they are moved there afterwards, so that no existing
/// file is replaced.
void EngineRun::copyProject(unsigned mark, Project* project, const QString& name)
{
    bool isWhole = false;
    const QString runPath = m_tree->model->runPath(project->kind(), name, &isWhole);
    if (runPath.isEmpty()) {
        return;
    }
    const QString place = placeOf(project);
    const QString folder = m_folder + withSlash(runPath);
    const QString copy = QDir::cleanPath(withSlash(runPath) + place + name);
    const bool isBeside = m_folder == withSlash(QFileInfo(m_executable).absolutePath());
    m_texts.insert(mark, isBeside ? copy : m_folder + copy);
    m_runCopies.append({m_folder + copy, project->fileName(), project->kind()});
    if (isWhole && m_copies.back()->addFolder(folder)) {
        writeCopy(project, folder, name);
        return;
    }
    const QString passing = m_folder + name + QLatin1Char('-') +
                            QUuid::createUuid().toString(QUuid::WithoutBraces) + QLatin1Char('/');
    if (!m_copies.back()->addFolder(passing)) {
        m_result.failedFiles.append(place + QFileInfo(project->fileName()).fileName());
    } else if (writeCopy(project, passing, name)) {
        m_result.failedFiles += m_copies.back()->spread(passing, folder);
    }
}

/// Writes all files of a project below a folder and names the main file `name`. Returns false if
/// the project was deleted meanwhile.
bool EngineRun::writeCopy(Project* project, const QString& folder, const QString& name)
{
    const QString place = placeOf(project);
    const QString mainName = QFileInfo(project->fileName()).fileName();
    const QPointer<Project> alive = project;
    QStringList failed;
    bool isNamed = false;
    const LazySync lazy(LazySync::Temporary);
    if (mainName.isEmpty()) {
        ProjectFile* const main = project->file(FileID::MainCode);
        isNamed = main && main->toFile(*FileSystemArchive::instance(), folder + name, true);
    } else {
        project->saveAll(folder, true, nullptr);
        isNamed =
            mainName == name || QFile::rename(folder + place + mainName, folder + place + name);
        failed = alive ? project->failedFiles() : QStringList();
    }
    for (const QString& file : qAsConst(failed)) {
        m_result.failedFiles.append(QDir::cleanPath(place + file));
    }
    if (!isNamed && !failed.contains(mainName)) {
        m_result.failedFiles.append(place + (mainName.isEmpty() ? name : mainName));
    }
    return alive;
}

void EngineRun::startEngine()
{
    QStringList arguments = runArguments(m_parameters, m_texts);
    if (m_tree) {
        arguments = m_tree->model->runArguments(m_executable, arguments, m_runCopies);
    }
    const Launch launch = launchOf(m_executable, arguments);
    m_result.program = launch.program;
    m_result.arguments = launch.arguments;
    m_result.folder = launch.folder;
    EngineProcess process;
    if (m_tree) {
        ParentProject* tree = m_tree->model;
        m_tree->engine = &process;
        m_tree->engineRun = this;
        QObject::connect(&process, &EngineProcess::output, tree, &ParentProject::engineOutput);
        QObject::connect(&process, &EngineProcess::started, tree,
                         [=] { emit tree->engineStarted(launch.program, launch.arguments); });
        // Without the tree nobody else could stop the engine.
        QObject::connect(tree, &QObject::destroyed, &process, &EngineProcess::stop);
    }
    m_result.outcome = RunResult::GivenUp;
    if (m_tree && m_tree->model->mayStart(m_executable)) {
        process.run(launch);
        m_result.outcome = process.outcome();
        m_result.exitCode = process.exitCode();
    }
    finish(process);
}

bool EngineRun::copyAgain(Project* project, ParentProject::RunCopy* copy, QStringList* failed)
{
    if (m_isCopying) {
        return false;
    }
    const QScopedValueRollback<bool> once(m_isCopying, true);
    const QStringList failedBefore = std::exchange(m_result.failedFiles, {});
    // Keep the newest copy: the engine may still be reading it.
    dropCopies(1);
    m_copies.push_back(std::make_unique<TemporaryCopies>(m_folder));
    m_runCopies.clear();
    copyProject(0, project, QStringLiteral("zorvs_0"));
    *failed = std::exchange(m_result.failedFiles, failedBefore);
    if (!m_tree || m_runCopies.isEmpty() || !QFileInfo(m_runCopies.first().copy).isFile()) {
        return false;
    }
    *copy = m_runCopies.first();
    return true;
}

/// Removes all copies except the newest `kept` ones.
void EngineRun::dropCopies(size_t kept)
{
    while (m_copies.size() > kept) {
        m_result.leftCopies += m_copies.front()->remove();
        m_copies.erase(m_copies.begin());
    }
}

void EngineRun::finish(const EngineProcess& process)
{
    if (m_tree) {
        m_tree->engineRun = nullptr;
    }
    dropCopies(0);
    keepResult();
    if (m_tree) {
        m_tree->runnable = true;
        emit m_tree->model->engineFinished();
    }
    if (process.error() >= 0 && m_result.outcome != RunResult::Stopped) {
        Dialogs::instance()->error(
            ParentProject::tr("Error %1!").arg(process.error()),
            ParentProject::tr("Can't start the process '%1'!").arg(m_result.program));
    }
}

/// Shows a warning, sets the outcome and returns false.
bool EngineRun::refuse(RunResult::Outcome outcome, const QString& warning)
{
    m_result.outcome = outcome;
    keepResult();
    Dialogs::instance()->warning(ParentProject::tr("Warning!"), warning);
    return false;
}

void EngineRun::keepResult()
{
    if (m_tree) {
        m_tree->runResult = m_result;
    }
}

void ParentProject::run()
{
    EngineRun(d.get()).run();
}

bool ParentProject::copyForEngine(Project* project, RunCopy* copy, QStringList* failed)
{
    return d->engineRun && d->engineRun->copyAgain(project, copy, failed);
}

bool ParentProject::isRunning() const
{
    return !d->runnable;
}

RunResult ParentProject::runResult() const
{
    return d->runResult;
}

void ParentProject::stopEngine()
{
    if (d->engine) {
        d->engine->stop();
    }
}

}  // namespace Zorv
