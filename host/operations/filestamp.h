#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Operations {

/// The state of a file, or of a folder of loose images, at one moment. For any thread.
struct FileStamp
{
    bool exists = false;
    qint64 size = 0;    ///< for a folder: the sum over its files
    QDateTime changed;  ///< for a folder: the last change in it
    QByteArray hash;    ///< SHA-256 of all bytes; empty if not computed

    /// Fills in everything except the hash.
    static FileStamp of(const QString& fileName);

    /// Computes the hash. It stays empty if the file no longer matches the stamp.
    void addHash(const QString& fileName);

    bool isSameState(const FileStamp& other) const;
};

}  // namespace Operations
