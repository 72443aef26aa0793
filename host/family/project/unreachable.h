#pragma once

#include <QStringList>

namespace Family {

/// Why a file or folder cannot be looked at though something may be there: its folders, or itself
/// as a folder, are closed. In words for the person; empty if it can be read, or nothing is there.
QString unreachable(const QString& path);

/// The same, or else `otherwise`, with the path in the place of its "%1".
QString orUnreachable(const QString& otherwise, const QString& path);

/// Why a file that is there cannot be read, as a part of a sentence; empty if it can be. A pipe or
/// a device is not opened, for that may never end.
QString unreadableReason(const QString& fileName);

/// The folders below one, as paths that begin with it, that cannot be looked into and so may hold
/// projects. Looks where `FamilyParentProject::mainFiles()` does.
QStringList closedFolders(const QString& folder);

}  // namespace Family
