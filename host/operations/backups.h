#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Family {
class FamilyParentProject;
class FamilyProject;
}  // namespace Family

namespace Operations {

/// One backup of a game: a folder below its folder "backup".
struct Backup
{
    QString folder;     ///< name of the folder, by which it is restored
    QString name;       ///< what the person called it; the folder's name if that tells no time
    QDateTime time;     ///< when it was made; invalid if the folder's name tells no time
    int fileCount = 0;  ///< files that a restore would copy
    qint64 bytes = 0;   ///< their size
};

/// What a restore does to one file of the game.
struct RestoredFile
{
    enum Change {
        New,      ///< the game lacks it
        Changed,  ///< the game has another content
        Same      ///< the game has the same bytes
    };

    QString path;  ///< relative to the game
    Change change;
};

/// How a backup or a restore ended.
struct BackupResult
{
    QString folder;       ///< the backup that was made, for a restore that of its safety; or empty
    QStringList failed;   ///< files that could not be copied, relative to the game
    QStringList missing;  ///< files that a project names and that are not there
    bool isCanceled = false;  ///< the person gave it up
    QString error;            ///< what, where, what to do, for the person; empty if all went well
};

/// Why a text cannot be the name of a backup, for the person; empty if it can.
QString backupNameFault(const QString& name);

/// Opens every project of a game that is not open yet and gives those; the
/// caller ends them (`closeProjects()`). One whose main file cannot be read, or has a
/// name that is no text, stays closed, and the reason goes into `errors`.
QList<Family::FamilyProject*> openAllProjects(Family::FamilyParentProject* game,
                                              QStringList* errors);
void closeProjects(const QList<Family::FamilyProject*>& projects);

/// The backups of a game, the youngest first.
QVector<Backup> listBackups(const Family::FamilyParentProject& game);

/// What restoring the backup in `folder` would do, file by file in order of
/// path. Compares with what is on disk, not with unsaved changes. Empty, with
/// `error`, if there is no such backup.
QVector<RestoredFile> filesToRestore(const Family::FamilyParentProject& game, const QString& folder,
                                     QString* error);

/// Copies the open projects, with unsaved changes and with the files of the game
/// that they share, into a new backup. There is none if it is given up, if a file that is
/// there cannot be copied, or if projects could not be opened: `unopened` tells why. If a
/// backup of the same moment has the name, a number comes behind it.
BackupResult makeBackup(Family::FamilyParentProject* game, const QString& name,
                        const QStringList& unopened = {});

/// Puts a backup back and reads the open projects again; unsaved changes of
/// these are lost, files that the backup lacks stay. First everything that is
/// about to change, with unsaved changes of the open projects, is copied into a
/// backup "Before restore", unless `makesSafety` is false; if that fails nothing
/// is restored.
BackupResult restoreBackup(Family::FamilyParentProject* game, const QString& folder,
                           bool makesSafety = true);

}  // namespace Operations
