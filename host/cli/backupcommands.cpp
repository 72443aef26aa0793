#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/progresshost.h"
#include "family/check/check.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/unreachable.h"
#include "operations/backups.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>

#include <memory>

namespace Cli {

namespace {

using Family::FamilyParentProject;
using Operations::Backup;
using Operations::BackupResult;
using Operations::RestoredFile;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// A game folder with all projects that can be opened.
class OpenGame
{
public:
    explicit OpenGame(const QString& folder)
        : m_game(std::make_unique<FamilyParentProject>(folder)),
          m_projects(Operations::openAllProjects(m_game.get(), &m_errors))
    {
    }
    ~OpenGame() { Operations::closeProjects(m_projects); }

    FamilyParentProject* game() const { return m_game.get(); }
    bool isEmpty() const { return m_projects.isEmpty() && m_errors.isEmpty(); }
    const QStringList& errors() const { return m_errors; }

private:
    Q_DISABLE_COPY(OpenGame)
    std::unique_ptr<FamilyParentProject> m_game;
    QStringList m_errors;
    QList<Family::FamilyProject*> m_projects;
};

/// The folder of the named game. If it is not a game, prints an error and returns nothing.
QString gameOf(const QString& path)
{
    const QFileInfo info(path);
    const QString closed = Family::unreachable(path);
    const QString folder =
        closed.isEmpty() && info.exists() ? Family::checkedFolder(path) : QString();
    if (!closed.isEmpty()) {
        complain(closed);
    } else if (!info.exists()) {
        complain(Text::tr("There is no folder '%1'.").arg(path));
    } else if (folder.isEmpty()) {
        complain(Text::tr("'%1' is no folder. Name the folder of a game.").arg(path));
    }
    return folder;
}

QString changeName(RestoredFile::Change change)
{
    switch (change) {
    case RestoredFile::New:
        return QStringLiteral("new");
    case RestoredFile::Changed:
        return QStringLiteral("changed");
    default:
        return QStringLiteral("same");
    }
}

int finish(const BackupResult& result, Output& output)
{
    if (!result.folder.isEmpty()) {
        output.writeLine({result.folder});
    }
    for (const QString& file : result.failed) {
        complain(Text::tr("'%1' could not be copied.").arg(file));
    }
    if (!result.error.isEmpty()) {
        complain(result.error);
    }
    if (result.isCanceled) {
        if (result.error.isEmpty()) {
            complain(Text::tr("Given up. Nothing has changed."));
        }
        return NotedSignals::exitStatus();
    }
    return result.error.isEmpty() ? Fine : NotDone;
}

int listChanges(const FamilyParentProject& game, const QString& folder, Output& output)
{
    QString error;
    const QVector<RestoredFile> files = Operations::filesToRestore(game, folder, &error);
    if (!error.isEmpty()) {
        complain(error);
        return NotDone;
    }
    for (const RestoredFile& file : files) {
        output.writeLine({changeName(file.change), file.path});
    }
    return Fine;
}

void writeJson(const QVector<Backup>& backups, Output& output)
{
    JsonList list(output);
    for (const Backup& backup : backups) {
        list.add({{QStringLiteral("folder"), backup.folder},
                  {QStringLiteral("name"), backup.name},
                  {QStringLiteral("time"), backup.time.toString(Qt::ISODate)},
                  {QStringLiteral("files"), backup.fileCount},
                  {QStringLiteral("bytes"), double(backup.bytes)}});
    }
}

}  // namespace

int backUp(const Invocation& invocation, Output& output)
{
    const QString name = invocation.operands.value(1, Text::tr("Manual"));
    const QString fault = Operations::backupNameFault(name);
    if (!fault.isEmpty()) {
        complain(fault);
        return WrongUsage;
    }
    const QString folder = gameOf(invocation.operands.first());
    if (folder.isEmpty()) {
        return NotDone;
    }
    ProgressHost host;
    const OpenGame opened(folder);
    if (opened.isEmpty()) {
        complain(Text::tr("There is no character or stage in '%1'. Expected files such as "
                          "'characters/hero/hero.character'.")
                     .arg(invocation.operands.first()));
        return NotDone;
    }
    for (const QString& error : opened.errors()) {
        complain(error);
    }
    const BackupResult result = Operations::makeBackup(opened.game(), name, opened.errors());
    const QStringList missing = result.folder.isEmpty() ? QStringList() : result.missing;
    for (const QString& file : missing) {
        complain(Text::tr("'%1' is named and not there. The backup lacks it.").arg(file));
    }
    return finish(result, output);
}

int listBackups(const Invocation& invocation, Output& output)
{
    const QString folder = gameOf(invocation.operands.first());
    if (folder.isEmpty()) {
        return NotDone;
    }
    const FamilyParentProject game(folder);
    const QVector<Backup> backups = Operations::listBackups(game);
    if (invocation.json) {
        writeJson(backups, output);
        return Fine;
    }
    for (const Backup& backup : backups) {
        output.writeLine({backup.folder,
                          backup.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), backup.name,
                          QString::number(backup.fileCount), QString::number(backup.bytes)});
    }
    return Fine;
}

int restore(const Invocation& invocation, Output& output)
{
    const QString folder = gameOf(invocation.operands.first());
    const QString backup = invocation.operands.at(1);
    if (folder.isEmpty()) {
        return NotDone;
    }
    if (invocation.dryRun) {
        return listChanges(FamilyParentProject(folder), backup, output);
    }
    ProgressHost host;
    const OpenGame opened(folder);
    return finish(Operations::restoreBackup(opened.game(), backup, !invocation.noSafetyBackup),
                  output);
}

}  // namespace Cli
