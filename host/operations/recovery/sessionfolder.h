#pragma once

#include <QFileInfoList>
#include <QString>

#include <memory>
#include <vector>

class QLockFile;

namespace Operations {

/// The folder in which one process keeps its recovery copies, locked as long as
/// the object lives. A process that dies leaves it, and another one takes it
/// over. Main thread only; files in it may be written from anywhere.
class SessionFolder
{
public:
    /// Where the folders of all sessions stand: "recovery" in the person's data
    /// folder of this program, outside of any game.
    static QString defaultRoot();

    /// A new folder below `root`. Null, with `error`, if none can be made.
    static std::unique_ptr<SessionFolder> create(const QString& root, QString* error);

    /// Every folder below `root` whose process is gone.
    static std::vector<std::unique_ptr<SessionFolder>> claimAbandoned(const QString& root);

    /// Gives the folder up, and removes it if there is nothing in it.
    ~SessionFolder();

    /// With "/" at its end.
    QString path() const { return m_path; }

    /// The path of the copy of that number.
    QString copyPath(int number) const;

    /// The copies in it, whole or not. Nothing else there is touched by anybody.
    QFileInfoList copies() const;

    /// Removes the copies, and what a write that was cut off has left.
    void removeCopies();

private:
    SessionFolder(const QString& path, std::unique_ptr<QLockFile> lock);
    static std::unique_ptr<SessionFolder> claim(const QString& path);

    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

}  // namespace Operations
