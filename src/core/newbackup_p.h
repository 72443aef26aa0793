#pragma once

#include <QString>

namespace Zorv {

/// The folder of a backup in progress. It gets its final name only when it is complete.
///
/// Until then it is inside a hidden, locked folder, which the destructor removes unless `finish()`
/// succeeded. The constructor first removes what crashed programs have left.
class NewBackup
{
public:
    /// `folder` contains all backups.
    NewBackup(const QString& folder, const QString& name);
    ~NewBackup();
    NewBackup(const NewBackup&) = delete;
    NewBackup& operator=(const NewBackup&) = delete;

    /// The folder for the files, with "/" at its end. Empty if it could not be created.
    QString path() const { return m_path; }

    /// Gives the folder its final name. If a backup with this name exists, made in the same second,
    /// the files are added to it. Returns false if renaming fails.
    bool finish();

    /// True if `name` is not that of an unfinished backup.
    static bool isWholeName(const QString& name);

private:
    bool make(const QString& hidden);
    bool join(const QString& target) const;

    QString m_folder;
    QString m_name;
    QString m_hidden;
    QString m_path;
    int m_handle = -1;
};

}  // namespace Zorv
