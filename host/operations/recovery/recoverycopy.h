#pragma once

#include "family/grammar/filekind.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Operations {

/// A file as it was at some moment.
struct FileStamp
{
    bool exists = false;
    qint64 size = 0;
    QDateTime changed;
    QByteArray hash;  ///< SHA-256 of its bytes; empty if they were not looked at

    /// All but the hash.
    static FileStamp of(const QString& fileName);

    /// Reads the file for the hash, which stays empty if the file is no longer
    /// what the stamp says. For any thread.
    void addHash(const QString& fileName);

    bool isSameState(const FileStamp& other) const;
};

/// An unsaved text that was put aside, with all that is needed to bring it back.
///
/// As bytes: "ZORVCOPY", the version (32 bits), the length of what follows the
/// head (64 bits), its SHA-256 (32 bytes), all big endian; then the fields in the
/// order below as `QDataStream` writes them. A single byte that is wrong or
/// missing makes the copy unreadable as a whole.
struct RecoveryCopy
{
    QString fileName;    ///< empty for a file that was never saved
    QString mainFile;    ///< of the project; empty likewise
    QString gameFolder;  ///< with "/" at its end; empty if there was none
    Family::FileKind kind = Family::FileKind::Code;
    QString codec;
    QDateTime time;   ///< when the copy was made
    FileStamp stamp;  ///< the file that the text was read from
    QString text;     ///< lines end in a line feed

    QByteArray toBytes() const;

    /// False, with `error` for the person, for anything but the whole of a copy;
    /// the copy is as it was then.
    bool fromBytes(const QByteArray& bytes, QString* error);
};

}  // namespace Operations
