#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Zorv {

/// True if anything has this path, also a link that leads nowhere.
bool isThere(const QString& path);

/// Which copies stand in the folder of an engine. Paths are relative to it.
struct RunRecord
{
    /// A copy, as it was when it came to its place: what has changed since is not
    /// the copy any more.
    struct File
    {
        QString path;
        qint64 size = 0;
        qint64 modified = 0;  ///< in ms since 1970, UTC
    };

    QString folder;            ///< the engine's, ends in "/"
    QStringList wholeFolders;  ///< with all that they hold
    QVector<File> files;
    QStringList madeFolders;  ///< to be removed when they are empty

    /// Takes up a file as it is now at `place`.
    void addFile(const QString& path, const QString& place);

    void forgetFile(const QString& path);

    bool write(const QString& fileName) const;

    /// False if the file is no whole record.
    bool read(const QString& fileName);

    /// The record without all that is not there, or cannot be a copy.
    RunRecord safePart() const;

    /// The full paths, those of folders with "/" behind, in the order of removal.
    QStringList paths() const;

    /// Removes everything; gives the paths that stay. A made folder that is not
    /// empty stays without being told.
    QStringList removeAll() const;

private:
    bool isInside(const QString& path) const;
    bool isUnchanged(const File& file) const;
    bool holdsCopy() const;
};

}  // namespace Zorv
