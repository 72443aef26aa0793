#pragma once

#include <QStringList>

namespace Zorv {

/// Removes a folder with everything in it. Returns true if it no longer exists
/// or never did. Stops and returns false at the first entry that cannot be
/// removed. A symbolic link, even `path` itself, is removed like a file: its
/// target is never touched.
bool removeDir(const QString& path);

/// Appends the full path of every file below the folder `path`, which ends in
/// "/". Hidden and unreadable entries and symbolic links are skipped, with
/// everything below them.
void listFiles(const QString& path, QStringList& list);

/// True if `name` is a valid name for a single entry of a folder.
bool isPlainName(const QString& name);

/// The folder of a path, or the nearest parent that exists.
QString nearestFolder(const QString& path);

}  // namespace Zorv
