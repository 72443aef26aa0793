#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Zorv {

/// True if something has this path, even a broken link.
bool isThere(const QString& path);

/// A list of the copies in an engine's folder. Paths are relative to that
/// folder.
struct RunRecord
{
    /// A copy with its size and time when it was put in place. If they differ
    /// later, it is no longer our copy.
    struct File
    {
        QString path;
        qint64 size = 0;
        qint64 modified = 0;  ///< in ms since 1970, UTC
    };

    QString folder;            ///< the engine's folder, with "/" at its end
    QStringList wholeFolders;  ///< temporary with everything in them
    QVector<File> files;
    QStringList madeFolders;  ///< to be removed when empty

    /// Adds a file with the size and time it has now at `place`.
    void addFile(const QString& path, const QString& place);

    void forgetFile(const QString& path);

    bool write(const QString& fileName) const;

    /// Returns false if the file is not a complete record.
    bool read(const QString& fileName);

    /// A record without anything that no longer exists or cannot be a copy.
    RunRecord safePart() const;

    /// The full paths in the order of removal. Folders end with "/".
    QStringList paths() const;

    /// Removes everything and returns the paths that could not be removed. Made
    /// folders that are not empty stay and are not returned.
    QStringList removeAll() const;

private:
    bool isInside(const QString& path) const;
    bool isUnchanged(const File& file) const;
    bool holdsCopy() const;
};

}  // namespace Zorv
