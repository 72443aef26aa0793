#pragma once

#include <QString>

namespace Zorv {

/// The folder of a backup that is being made: it has its name only once it is complete.
///
/// It stands below a hidden folder that is locked, and is removed unless it was finished. What
/// programs that are gone have left of theirs goes first.
class NewBackup
{
public:
    /// `folder` is that of all backups.
    NewBackup(const QString& folder, const QString& name);
    ~NewBackup();
    NewBackup(const NewBackup&) = delete;
    NewBackup& operator=(const NewBackup&) = delete;

    /// Where the files go, ends in "/"; empty if the folder could not be made.
    QString path() const { return m_path; }

    /// Gives it its name. If there is one of this name, made in the same second, the files
    /// join those of that one. False if the name cannot be given.
    bool finish();

    /// True for the name of a folder that is none of these.
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
