#include "operations/backups.h"

#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/filereference.h"
#include "family/project/unnamedprojects.h"
#include "family/project/unreachable.h"
#include "operations/sharedfiles.h"

#include <zorv/core/filechange.h>
#include <zorv/core/files.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

// A restore first compares the backup with the disk. It then watches every file concerned, and
// makes the safety backup. Only after that it copies. A file that another program changes in
// between is not overwritten, because its new content would be in no backup.

namespace Operations {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;

namespace {

const int MaxNameBytes = 200;  // leaves room for the time in front of the name
const int CompareBlock = 128 * 1024;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Backups)
};

QString folderOf(const FamilyParentProject& game, const QString& backup)
{
    return game.absolutePath() + QLatin1String("backup/") + backup + QLatin1Char('/');
}

bool isSame(const QString& a, const QString& b)
{
    QFile left(a), right(b);
    // A pipe has size 0 like an empty file, but opening it may block forever.
    if (!QFileInfo(a).isFile() || !QFileInfo(b).isFile() || left.size() != right.size() ||
        !left.open(QIODevice::ReadOnly) || !right.open(QIODevice::ReadOnly)) {
        return false;
    }
    QByteArray block;
    do {
        block = left.read(CompareBlock);
        if (block != right.read(CompareBlock)) {
            return false;
        }
    } while (!block.isEmpty());
    return left.error() == QFile::NoError && right.error() == QFile::NoError;
}

bool copyIntoBackup(const FamilyParentProject& game, const QString& relative, const QString& folder)
{
    Zorv::FileSystemArchive& disk = *Zorv::FileSystemArchive::instance();
    const QString target = folder + relative;
    FamilyDocument* document = openDocumentOf(game, relative);
    if (document && document->isModified()) {
        return document->toFile(disk, target, true);
    }
    QString error;
    return copyFile(disk, game.absolutePath() + relative, disk, target, &error) && error.isEmpty();
}

/// Copies the files that are not in the backup yet; returns those that failed.
QStringList addToBackup(const FamilyParentProject& game, const QStringList& files,
                        const QString& folder)
{
    QStringList failed;
    for (const QString& file : files) {
        if (!QFileInfo::exists(folder + file) && !failed.contains(file) &&
            !copyIntoBackup(game, file, folder)) {
            failed.append(file);
        }
    }
    return failed;
}

bool isMissing(const FamilyParentProject& game, const QString& file)
{
    for (const FamilyProject* project : openProjectsOf(game)) {
        if (project->fileName().isEmpty() && project->title() == file) {
            return false;
        }
    }
    return !QFileInfo::exists(game.absolutePath() + file) && !openDocumentOf(game, file);
}

void sortFailures(const FamilyParentProject& game, const QStringList& files, BackupResult* result)
{
    for (const QString& named : files) {
        // The path of a shared file is relative to its project and contains "..".
        const QString file = QDir::cleanPath(named);
        (isMissing(game, file) ? result->missing : result->failed).append(file);
    }
}

/// Appends a number if a backup of this second has the name already. Both would share a folder, and
/// the files of the first one would be overwritten.
QString freeName(const FamilyParentProject& game, const QString& name)
{
    const QDateTime now = QDateTime::currentDateTime();
    QStringList taken;
    for (const QString& folder : game.backups()) {
        QString own;
        const QDateTime time = Zorv::ParentProject::backupTime(folder, &own);
        if (time.isValid() && qAbs(time.secsTo(now)) <= 1) {
            taken.append(own);
        }
    }
    QString free = name;
    for (int i = 2; taken.contains(free); ++i) {
        free = name + QLatin1Char(' ') + QString::number(i);
    }
    return free;
}

/// The files to protect before a restore: those that it replaces, and those with unsaved changes.
QStringList filesAtRisk(const FamilyParentProject& game, const QVector<RestoredFile>& restored)
{
    QStringList files;
    for (const RestoredFile& file : restored) {
        if (file.change == RestoredFile::Changed &&
            QFileInfo(game.absolutePath() + file.path).isFile()) {
            files.append(file.path);
        }
    }
    for (const FamilyProject* project : openProjectsOf(game)) {
        for (const FamilyDocument* document : project->documents()) {
            const QString name = document->fileName();
            if (document->isModified() && name.startsWith(game.absolutePath())) {
                files.append(name.mid(game.absolutePath().size()));
            }
        }
    }
    return files;
}

/// Makes a backup and deletes it again unless `isComplete`, called with its folder, returns true.
BackupResult makeBackupIf(FamilyParentProject* game, const QString& wantedName,
                          const std::function<bool(const QString&, BackupResult*)>& isComplete)
{
    BackupResult result;
    result.error = backupNameFault(wantedName);
    if (!result.error.isEmpty()) {
        return result;
    }
    bool isAsked = false;
    result.folder = game->makeBackup(freeName(*game, wantedName), [&](const QString& folder) {
        isAsked = true;
        return isComplete(folder, &result);
    });
    result.isCanceled = game->wasCanceled();
    const bool isFailed = isAsked && !(result.failed.isEmpty() && result.error.isEmpty());
    if (result.folder.isEmpty() && !result.isCanceled && !isFailed) {
        result.error =
            Text::tr("Cannot make the folder %1. Check that there is space on the disk "
                     "and that the folder of the game may be written to.")
                .arg(QDir::toNativeSeparators(game->absolutePath() + game->failedFiles().last()));
    }
    return result;
}

BackupResult makeSafetyBackup(FamilyParentProject* game, const QStringList& files)
{
    return makeBackupIf(
        game, Text::tr("Before restore"), [&](const QString& folder, BackupResult* result) {
            result->failed = addToBackup(*game, files, folder);
            if (!result->failed.isEmpty()) {
                result->error =
                    Text::tr("Nothing was restored, for not all files that would change could "
                             "be copied aside first. Check that there is space on the disk, or "
                             "restore without a backup of the present files.");
            }
            return result->failed.isEmpty();
        });
}

}  // namespace

QString backupNameFault(const QString& name)
{
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    const auto isRefused = [](QChar c) {
        return c.category() == QChar::Other_Control || refused.contains(c);
    };
    if (name.trimmed().isEmpty()) {
        return Text::tr("The name of the backup is empty. Give it a name such as \"Before the new "
                        "moves\".");
    }
    if (std::any_of(name.begin(), name.end(), isRefused)) {
        return Text::tr("The name '%1' cannot be that of a folder: it must have none of %2 and no "
                        "control characters. Choose another name.")
            .arg(name, QStringLiteral("/ \\ : * ? \" < > |"));
    }
    if (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' '))) {
        return Text::tr("The name '%1' ends in a point or a blank, which some systems drop. Choose "
                        "another name.")
            .arg(name);
    }
    if (QFile::encodeName(name).size() > MaxNameBytes) {
        return Text::tr("The name of the backup is too long. Choose one of at most %1 letters.")
            .arg(MaxNameBytes);
    }
    return {};
}

QList<FamilyProject*> openAllProjects(FamilyParentProject* game, QStringList* errors)
{
    QStringList opened;
    for (const FamilyProject* project : openProjectsOf(*game)) {
        opened.append(project->fileName());
    }
    for (const QString& path : Family::unnamedProjects(game->absolutePath())) {
        errors->append(Family::unnamedProjectText(path));
    }
    for (const QString& path : Family::closedFolders(game->absolutePath())) {
        errors->append(Family::unreachable(path));
    }
    QList<FamilyProject*> projects;
    for (const QString& mainFile : FamilyParentProject::mainFiles(game->absolutePath())) {
        if (opened.contains(mainFile)) {
            continue;
        }
        QString error;
        FamilyProject* project = FamilyProject::open(game, mainFile, &error);
        if (project) {
            projects.append(project);
        } else {
            errors->append(error);
        }
    }
    return projects;
}

void closeProjects(const QList<FamilyProject*>& projects)
{
    for (FamilyProject* project : projects) {
        project->release();
        delete project;
    }
}

QVector<Backup> listBackups(const FamilyParentProject& game)
{
    QVector<Backup> result;
    for (const QString& folder : game.backups()) {
        Backup backup;
        backup.folder = folder;
        backup.time = Zorv::ParentProject::backupTime(folder, &backup.name);
        for (const QString& file : game.backupFiles(folder)) {
            ++backup.fileCount;
            backup.bytes += QFileInfo(folderOf(game, folder) + file).size();
        }
        result.append(backup);
    }
    return result;
}

QVector<RestoredFile> filesToRestore(const FamilyParentProject& game, const QString& folder,
                                     QString* error)
{
    error->clear();
    if (!game.backups().contains(folder)) {
        *error = Text::tr("There is no backup '%1' in %2. Choose one of the list of backups.")
                     .arg(folder, QDir::toNativeSeparators(game.absolutePath()));
        return {};
    }
    QStringList files = game.backupFiles(folder);
    files.sort();
    QVector<RestoredFile> result;
    for (const QString& file : qAsConst(files)) {
        const QString present = game.absolutePath() + file;
        if (!Family::staysInside(game.absolutePath(), present)) {
            *error =
                Text::tr("Nothing is restored: %1 lies behind a link that leads out of the game. "
                         "Remove the link, or put a folder or file in its place.")
                    .arg(QDir::toNativeSeparators(present));
            return {};
        }
        const bool isThere = QFileInfo::exists(present);
        const bool same = isThere && isSame(folderOf(game, folder) + file, present);
        result.append({file, !isThere ? RestoredFile::New
                             : same   ? RestoredFile::Same
                                      : RestoredFile::Changed});
    }
    return result;
}

BackupResult makeBackup(FamilyParentProject* game, const QString& name, const QStringList& unopened)
{
    return makeBackupIf(game, name, [&](const QString&, BackupResult* result) {
        sortFailures(*game, game->failedFiles(), result);
        result->failed.removeDuplicates();
        result->missing.removeDuplicates();
        const bool isComplete = result->failed.isEmpty() && unopened.isEmpty();
        if (!isComplete) {
            result->error = Text::tr("There is no backup, for it would not be complete. Check that "
                                     "there is space on the disk and that all files may be read, "
                                     "then try again.");
        }
        return isComplete;
    });
}

BackupResult restoreBackup(FamilyParentProject* game, const QString& folder, bool makesSafety)
{
    BackupResult result;
    const QVector<RestoredFile> restored = filesToRestore(*game, folder, &result.error);
    if (!result.error.isEmpty()) {
        return result;
    }
    // Files that another program changes from now on are not in the safety backup, so they must not
    // be replaced.
    std::vector<std::unique_ptr<Zorv::FileChange>> changes;
    for (const RestoredFile& file : restored) {
        changes.push_back(std::make_unique<Zorv::FileChange>(game->absolutePath() + file.path));
    }
    const QStringList atRisk = filesAtRisk(*game, restored);
    if (makesSafety && !atRisk.isEmpty()) {
        result = makeSafetyBackup(game, atRisk);
        if (result.isCanceled || !result.error.isEmpty()) {
            return result;
        }
    }
    result.failed.clear();
    result.missing.clear();
    if (!game->restoreBackup(folder)) {
        result.error = Text::tr("The game cannot be written to, so nothing was restored.");
        return result;
    }
    result.isCanceled = game->wasCanceled();
    result.failed = game->failedFiles();
    if (!result.failed.isEmpty()) {
        result.error = Text::tr("Some files were not restored and are as before. Check that there "
                                "is space on the disk and that they may be written to, then "
                                "restore again.");
    } else if (result.isCanceled) {
        result.error =
            Text::tr("The restore was given up in its middle: some files are those of the "
                     "backup, the others are as before. Restore again, or put back what "
                     "was there before.");
    }
    return result;
}

}  // namespace Operations
