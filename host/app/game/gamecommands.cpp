#include "app/game/gamecommands.h"

#include "app/game/backupnamedialog.h"
#include "app/game/gametree.h"
#include "app/game/restoredialog.h"
#include "app/session/gamesession.h"
#include "app/session/recentfolders.h"
#include "app/session/unsavedwork.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/gameprogram.h"
#include "operations/backups.h"
#include "operations/documentfile.h"
#include "operations/sharedfiles.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QDir>
#include <QFileInfo>

namespace App {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;
using Operations::BackupResult;
using Zorv::Dialogs;

namespace {

constexpr int MaxNames = 12;

QString namesOf(const QStringList& paths)
{
    QStringList names = paths.mid(0, MaxNames);
    if (paths.size() > MaxNames) {
        names.append(GameCommands::tr("and %n more", nullptr, paths.size() - MaxNames));
    }
    return QDir::toNativeSeparators(names.join(QLatin1Char('\n')));
}

QString paragraph(const QString& text, const QStringList& paths)
{
    return paths.isEmpty() ? QString() : text + QLatin1String("\n") + namesOf(paths);
}

/// The absolute path with links resolved, and with a trailing "/".
QString realPath(const QString& folder)
{
    const QString real = QDir(folder).canonicalPath();
    return (real.isEmpty() ? QDir(folder).absolutePath() : real) + QLatin1Char('/');
}

}  // namespace

GameCommands::GameCommands(const WindowServices& services, GameTree* tree)
    : QObject(services.window), m_services(services), m_tree(tree)
{
}

QVector<ActionRow> GameCommands::actions()
{
    const Members<GameCommands> on(this);
    // clang-format off
    return {
        {"save_all_as",    "file.all",    QT_TRANSLATE_NOOP("App::Actions", "Save all &as..."),    {}, on(&GameCommands::saveAllAs),     on(&GameCommands::hasGame), nullptr, ActionRow::Button, "save_as"},
        {"backup",         "file.backup", QT_TRANSLATE_NOOP("App::Actions", "&Back up..."),        {}, on(&GameCommands::makeBackup),    on(&GameCommands::hasGame)},
        {"restore_backup", "file.backup", QT_TRANSLATE_NOOP("App::Actions", "Res&tore backup..."), {}, on(&GameCommands::restoreBackup), on(&GameCommands::hasGame), nullptr, ActionRow::Button, "restore"},
    };
    // clang-format on
}

bool GameCommands::hasGame() const
{
    return m_services.session->game();
}

void GameCommands::makeBackup()
{
    FamilyParentProject* game = m_services.session->game();
    BackupNameDialog dialog(m_services.window);
    if (!game || dialog.exec() != QDialog::Accepted) {
        return;
    }
    QStringList errors;
    const QList<FamilyProject*> others =
        dialog.wantsAll() ? Operations::openAllProjects(game, &errors) : QList<FamilyProject*>();
    BackupResult result = Operations::makeBackup(game, dialog.name(), errors);
    Operations::closeProjects(others);
    result.failed = errors + result.failed;
    tell(tr("Back up"), tr("The backup is in %1.").arg(result.folder), result);
}

void GameCommands::restoreBackup()
{
    FamilyParentProject* game = m_services.session->game();
    if (!game) {
        return;
    }
    RestoreDialog dialog(m_services.window, *game);
    if (dialog.exec() != QDialog::Accepted || dialog.folder().isEmpty() ||
        !askAboutUnsaved(m_services.session->modifiedFiles())) {
        return;
    }
    // Discarded changes must leave memory too, or the backup of the replaced files would contain
    // them instead of the files' contents.
    const QList<Zorv::ProjectFile*> discarded = m_services.session->modifiedFiles();
    for (Zorv::ProjectFile* file : discarded) {
        if (QFileInfo::exists(file->fileName())) {
            readAgain(file);
        }
    }
    const BackupResult result = Operations::restoreBackup(game, dialog.folder());
    tell(tr("Restore backup"),
         result.folder.isEmpty()
             ? tr("The backup is restored.")
             : tr("The backup is restored. What it replaced is in %1.").arg(result.folder),
         result);
}

void GameCommands::tell(const QString& title, const QString& done, const BackupResult& result) const
{
    QStringList parts{result.error, paragraph(tr("These could not be copied:"), result.failed),
                      paragraph(tr("These are named by a project and not there:"), result.missing)};
    parts.removeAll(QString());
    if (result.isCanceled) {
        m_services.status->showField(0, tr("Given up."));
    } else if (result.error.isEmpty()) {
        m_services.status->showField(0, done);
    }
    if (!result.error.isEmpty()) {
        Dialogs::instance()->error(title, parts.join(QLatin1String("\n\n")));
    } else if (!parts.isEmpty()) {
        Dialogs::instance()->warning(title, parts.join(QLatin1String("\n\n")));
    }
}

void GameCommands::refresh()
{
    QStringList errors;
    for (FamilyProject* project : m_services.session->projects()) {
        project->loadFiles();
        errors += project->loadErrors();
    }
    if (!errors.isEmpty()) {
        m_services.status->showField(0, errors.first());
    }
    m_services.parts->gameChanged();
}

/// For a project file directly in the folder: the new name of its main file, with suffix. Otherwise
/// a folder with a trailing "/". Empty if the user cancels.
QString GameCommands::askForPlace(bool* isFile) const
{
    const FamilyParentProject* game = m_services.session->game();
    const QList<FamilyProject*> projects = m_services.session->projects();
    *isFile = projects.size() == 1 && projects.first()->basePath().isEmpty() &&
              !Family::GameProgram::isIn(game->absolutePath());
    const QString title = tr("Save all as");
    if (!*isFile) {
        const QString folder =
            Dialogs::instance()->existingFolder(m_services.window, title, game->absolutePath());
        return folder.isEmpty() || !mayWriteInto(folder)
                   ? QString()
                   : QDir(folder).absolutePath() + QLatin1Char('/');
    }
    const FamilyDocument* document = projects.first()->mainDocument();
    const QString suffix = Family::fileSuffix(document->kind());
    QString name = Dialogs::instance()->saveFileName(
        m_services.window, title, document->fileName(),
        QStringLiteral("%1 (*%2)").arg(Family::fileKindName(document->kind()), suffix));
    if (!name.isEmpty() && !name.endsWith(suffix, Qt::CaseInsensitive)) {
        name += suffix;
    }
    const QString folder = QFileInfo(name).absolutePath();
    const bool staysInFolder = QDir(folder) == QDir(game->absolutePath());
    return name.isEmpty() || !(staysInFolder || mayWriteInto(folder)) ? QString() : name;
}

bool GameCommands::mayWriteInto(const QString& folder) const
{
    const QString shown = QDir::toNativeSeparators(folder);
    const QDir target(folder);
    if (realPath(folder).startsWith(realPath(m_services.session->folder()))) {
        Dialogs::instance()->warning(
            tr("Save all as"),
            tr("%1 lies in the folder of the game. Choose a folder outside of it.").arg(shown));
        return false;
    }
    return target.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot) ||
           Dialogs::instance()->question(
               tr("Save all as"),
               tr("There are files in %1. Those with the names of files of the game are "
                  "overwritten. Save there?")
                   .arg(shown),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

bool GameCommands::settleTwins() const
{
    const QString file = fileWithTwoContents(m_services.session->modifiedFiles());
    if (!file.isEmpty()) {
        Dialogs::instance()->warning(
            tr("Save all as"), tr("%1 was changed in several projects in different ways. Save it "
                                  "first, and choose what stays.")
                                   .arg(QDir::toNativeSeparators(file)));
    }
    return file.isEmpty();
}

bool GameCommands::settleEncodings() const
{
    const QList<FamilyDocument*> documents = m_services.session->modifiedDocuments();
    for (FamilyDocument* document : documents) {
        if (!Operations::settleEncoding(document)) {
            return false;
        }
    }
    return true;
}

/// With only one open project, saving would move its main file away from the others. A second
/// project without a file prevents that. Returns what could not be written.
QStringList GameCommands::saveFolderAs(const QString& folder) const
{
    FamilyParentProject* game = m_services.session->game();
    FamilyProject* second = nullptr;
    if (game->openedProjects().size() == 1 && !game->isGame()) {
        second = FamilyProject::create(game, Family::FileKind::Stage);
    }
    const QString oldRoot = game->absolutePath();
    game->saveAs(folder);
    QStringList failed = game->failedFiles();
    if (second) {
        failed.removeOne(second->title());
        second->release();
        delete second;
    }
    if (game->absolutePath() != oldRoot) {
        failed += Operations::moveSharedFiles(game, oldRoot);
    }
    return failed;
}

void GameCommands::saveAllAs()
{
    FamilyParentProject* game = m_services.session->game();
    bool isFile = false;
    const QString place =
        game && settleTwins() && settleEncodings() ? askForPlace(&isFile) : QString();
    if (place.isEmpty()) {
        return;
    }
    const QString oldRoot = game->absolutePath();
    QStringList failedFiles;
    if (isFile) {
        game->saveAs(place);
        failedFiles = game->failedFiles();
    } else {
        failedFiles = saveFolderAs(place);
    }
    const bool hasMoved = game->absolutePath() != oldRoot;
    const QString shown = QDir::toNativeSeparators(game->absolutePath());
    const QString failed = paragraph(tr("These files could not be written:"), failedFiles);
    if (hasMoved) {
        RecentFolders::add(game->absolutePath());
        // The tree's expanded rows are paths of the old place.
        m_tree->showGame(game);
        if (const FamilyProject* project = m_services.parts->project()) {
            m_tree->reveal(project->fileName());
        }
        m_services.status->showField(0, tr("All is saved in %1.").arg(shown));
    } else if (game->wasCanceled()) {
        m_services.status->showField(0, tr("Given up; the work goes on in %1.").arg(shown));
    }
    m_services.parts->gameChanged();
    if (hasMoved && !failed.isEmpty()) {
        Dialogs::instance()->warning(tr("Save all as"), failed);
    } else if (!hasMoved && !game->wasCanceled()) {
        Dialogs::instance()->error(
            tr("Save all as"),
            tr("The game could not be saved there. The work goes on in %1.").arg(shown) +
                QLatin1String("\n\n") + failed);
    }
}

}  // namespace App
