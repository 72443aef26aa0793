#pragma once

#include <QString>

namespace Zorv {

/// Files and folders that stand under a hidden name until they are whole.
///
/// Who makes one keeps it locked, so that others can tell it from what a program that is
/// gone has left. Re-entrant.
namespace Unfinished {

/// What the names of files, and of backups, end in. In front of it stands a number, and a
/// dot in front of that and of all.
extern const char* const FileSuffix;
extern const char* const BackupSuffix;

/// True if what is called so is not whole.
bool isName(const QString& name, const char* suffix);

/// Locks an open file or folder that was just made. False if somebody took it for a
/// leftover in between, and another name is needed.
bool lock(int handle, const QString& path);

/// A handle of a folder, to lock it by; -1 if it has none.
int openFolder(const QString& path);
void closeFolder(int handle);

/// Removes a leftover. False if it is none, or cannot be removed.
bool removeIfLeft(const QString& path);

/// Removes what programs that are gone have left in a folder, of one suffix.
void clear(const QString& folder, const char* suffix);

/// As `clear()` for files, but nothing if this process has done so a moment ago: many
/// files of one folder need one look at it.
void clearOnce(const QString& folder);

/// Writes down what is being made, for `removeAll()`, until it is there or given up.
void add(const QString& path);
void remove(const QString& path);

/// Removes all that is being made, and keeps everybody from making more. For a process
/// that ends at once.
void removeAll();

}  // namespace Unfinished
}  // namespace Zorv
