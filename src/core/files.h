#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QString>

class QIODevice;

namespace Zorv {

class Archive;

/// `path` joined with `name`. The archive is not asked and no case is changed:
/// the name stays so that an archive that ignores case could find the spelling.
ZORV_EXPORT QString fixFileCase(const QString& path, Archive& archive, const QString& name);

/// The suffix of a file name in upper case, as Latin-1: "PCX"; empty without one.
ZORV_EXPORT QByteArray fileExtension(const QString& fileName);

/// Reads `count` bytes from a device and drops them. A short read is not noticed.
ZORV_EXPORT void skipRead(QIODevice* device, unsigned count);

/// Makes the folder of a file, with all its parents. True if it is there now.
ZORV_EXPORT bool forcePath(const QString& fileName);

/// Copies a file from one archive to another, block by block. True if both
/// opened. With `error`, the reason of any failure, also of one that the result
/// does not tell (a write that fell short): empty if every byte arrived.
ZORV_EXPORT bool copyFile(Archive& source, const QString& sourceName, Archive& target,
                          const QString& targetName, QString* error = nullptr);

/// Removes what is being written, and the backup that is being made, and lets nothing more be
/// written: any write waits for ever. For a process that ends at once, in a thread of its own.
ZORV_EXPORT void removeUnfinished();

}  // namespace Zorv
