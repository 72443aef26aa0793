#pragma once

#include <QStringList>

namespace Zorv {

/// Removes a folder with all in it. True if it is gone or never was; stops with
/// false at the first entry that stays. A symbolic link, `path` itself included,
/// is removed as a file: what it leads to is never touched.
bool removeDir(const QString& path);

/// Appends the full path of every file below the folder `path`, which ends in
/// "/". Hidden and unreadable entries and symbolic links are left out, with all
/// below them.
void listFiles(const QString& path, QStringList& list);

/// True if a text can be the name of one entry of a folder.
bool isPlainName(const QString& name);

/// The folder of a path, or the nearest one above it that is there.
QString nearestFolder(const QString& path);

}  // namespace Zorv
