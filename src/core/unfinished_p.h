#pragma once

#include <QString>

namespace Zorv {

/// Files and folders that have a hidden name until they are complete.
///
/// Their creator keeps them locked. So other programs can tell them from leftovers of a process
/// that no longer exists. Re-entrant.
namespace Unfinished {

/// The name suffixes of files and of backups. A hidden name is a dot, possibly more text and
/// another dot, a number, and the suffix.
extern const char* const FileSuffix;
extern const char* const BackupSuffix;

/// True if `name` is the hidden name of something incomplete.
bool isName(const QString& name, const char* suffix);

/// Locks a file or folder that was just created and is open. Returns false if another program took
/// it for a leftover in the meantime; try another name then.
bool lock(int handle, const QString& path);

/// A handle of a folder for locking it; -1 if not available.
int openFolder(const QString& path);
void closeFolder(int handle);

/// Removes a leftover. Returns false if it is not one or cannot be removed.
bool removeIfLeft(const QString& path);

/// Removes the leftovers with one suffix in a folder.
void clear(const QString& folder, const char* suffix);

/// Like `clear()` for files, but does nothing if this process has done it a moment ago: one check
/// is enough for many files in one folder.
void clearOnce(const QString& folder);

/// Registers a path in progress for `removeAll()`, until it is complete or discarded.
void add(const QString& path);
void remove(const QString& path);

/// Removes everything in progress and blocks all threads from creating more. For a process that is
/// about to end.
void removeAll();

}  // namespace Unfinished
}  // namespace Zorv
