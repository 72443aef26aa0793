#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QString>

class QIODevice;

namespace Zorv {

class Archive;

/// `path` joined with `name`. It neither asks the archive nor changes case. The name remains so
/// that a case-insensitive archive could look up the real spelling here.
ZORV_EXPORT QString fixFileCase(const QString& path, Archive& archive, const QString& name);

/// The suffix of a file name in upper case, as Latin-1: "PCX". Empty if there is none.
ZORV_EXPORT QByteArray fileExtension(const QString& fileName);

/// Reads `count` bytes from a device and discards them. A short read goes unnoticed.
ZORV_EXPORT void skipRead(QIODevice* device, unsigned count);

/// Creates the folder of a file and all its parents. Returns true if it exists afterwards.
ZORV_EXPORT bool forcePath(const QString& fileName);

/// Copies a file from one archive to another, block by block. Returns true if both files could be
/// opened. `error` (if given) is set to the reason of any failure, including one that the result
/// does not show, such as an incomplete write. It is empty if every byte arrived.
ZORV_EXPORT bool copyFile(Archive& source, const QString& sourceName, Archive& target,
                          const QString& targetName, QString* error = nullptr);

/// Removes all half-written files and the unfinished backup, and blocks any further write forever.
/// For a process that ends at once; the call is made in its own thread.
ZORV_EXPORT void removeUnfinished();

}  // namespace Zorv
