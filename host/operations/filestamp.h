#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Operations {

/// A file, or a folder of loose images, as it was at some moment. For any thread.
struct FileStamp
{
    bool exists = false;
    qint64 size = 0;    ///< of a folder: of the files in it
    QDateTime changed;  ///< of a folder: the last change in it
    QByteArray hash;    ///< SHA-256 of all bytes; empty if they were not looked at

    /// All but the hash.
    static FileStamp of(const QString& fileName);

    /// Reads the file for the hash, which stays empty if the file is no longer
    /// what the stamp says.
    void addHash(const QString& fileName);

    bool isSameState(const FileStamp& other) const;
};

}  // namespace Operations
