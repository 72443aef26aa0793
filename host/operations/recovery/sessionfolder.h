#pragma once

#include <QFileInfoList>
#include <QString>

#include <memory>
#include <vector>

class QLockFile;

namespace Operations {

/// The folder for the recovery copies of one process, locked while this object lives. If the
/// process dies, the folder stays and another process can take it over. Main thread only; files in
/// it may be written from any thread.
class SessionFolder
{
public:
    /// The parent folder of all sessions: "recovery" in the user's data folder of this program,
    /// outside of any game.
    static QString defaultRoot();

    /// Creates a new folder inside `root`. Null, with `error`, if that fails.
    static std::unique_ptr<SessionFolder> create(const QString& root, QString* error);

    /// Takes over every folder inside `root` whose process is gone.
    static std::vector<std::unique_ptr<SessionFolder>> claimAbandoned(const QString& root);

    /// Releases the folder, and removes it if it is empty.
    ~SessionFolder();

    /// With "/" at its end.
    QString path() const { return m_path; }

    /// The path of the copy with this number.
    QString copyPath(int number) const;

    /// The copies in the folder, complete or not. No one touches other files there.
    QFileInfoList copies() const;

    /// Removes the copies, and leftovers of interrupted writes.
    void removeCopies();

private:
    SessionFolder(const QString& path, std::unique_ptr<QLockFile> lock);
    static std::unique_ptr<SessionFolder> claim(const QString& path);

    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

}  // namespace Operations
