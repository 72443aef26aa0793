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

/// A backup of a game: one folder inside its "backup" folder.
struct Backup
{
    QString folder;     ///< name of the folder; a restore needs it
    QString name;       ///< given by the user; the folder's name if that contains no time
    QDateTime time;     ///< when it was made; invalid if the folder's name contains no time
    int fileCount = 0;  ///< number of files that a restore would copy
    qint64 bytes = 0;   ///< their total size
};

/// What a restore does to one file of the game.
struct RestoredFile
{
    enum Change {
        New,      ///< not in the game
        Changed,  ///< different in the game
        Same      ///< byte for byte the same in the game
    };

    QString path;  ///< relative to the game
    Change change;
};

/// The result of a backup or a restore.
struct BackupResult
{
    QString folder;           ///< the new backup (for a restore: the safety backup), or empty
    QStringList failed;       ///< files that could not be copied, relative to the game
    QStringList missing;      ///< files that a project names but that do not exist
    bool isCanceled = false;  ///< the user canceled
    QString error;            ///< for the user: what, where, what to do; empty on success
};

/// Why a text is not a valid backup name, for the user; empty if it is valid.
QString backupNameFault(const QString& name);

/// Opens every project of a game that is not open yet and returns those. The caller closes them
/// with `closeProjects()`. A project stays closed, with the reason in `errors`, if its main file
/// cannot be read or its name is not valid text.
QList<Family::FamilyProject*> openAllProjects(Family::FamilyParentProject* game,
                                              QStringList* errors);
void closeProjects(const QList<Family::FamilyProject*>& projects);

/// The backups of a game, newest first.
QVector<Backup> listBackups(const Family::FamilyParentProject& game);

/// What restoring the backup in `folder` would do, file by file in path order. Compares with the
/// files on disk, not with unsaved changes. Empty, with `error`, if there is no such backup.
QVector<RestoredFile> filesToRestore(const Family::FamilyParentProject& game, const QString& folder,
                                     QString* error);

/// Copies the open projects into a new backup, with unsaved changes and with the files of the game
/// that they share. No backup is made if the user cancels, if an existing file cannot be copied, or
/// if projects could not be opened (`unopened` holds the reasons). If a backup of the same moment
/// has the name, a number is appended.
BackupResult makeBackup(Family::FamilyParentProject* game, const QString& name,
                        const QStringList& unopened = {});

/// Restores a backup and reloads the open projects. Their unsaved changes are lost. Files that are
/// not in the backup stay. Unless `makesSafety` is false, everything about to change is first
/// copied into a backup "Before restore", with the unsaved changes of the open projects. If that
/// fails, nothing is restored.
BackupResult restoreBackup(Family::FamilyParentProject* game, const QString& folder,
                           bool makesSafety = true);

}  // namespace Operations
