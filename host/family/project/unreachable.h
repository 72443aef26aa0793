#pragma once

#include <QStringList>

namespace Family {

/// Why a file or folder cannot be examined although it may exist: no permission for its folders, or
/// for the folder itself. A text for the user; empty if it can be read or does not exist.
QString unreachable(const QString& path);

/// The same, or else `otherwise` with the path in place of "%1".
QString orUnreachable(const QString& otherwise, const QString& path);

/// Why an existing file cannot be read, as part of a sentence; empty if it can. Pipes and devices
/// are not opened, because that could block forever.
QString unreadableReason(const QString& fileName);

/// The folders below `folder`, as paths that start with it, that cannot be listed and so may hide
/// projects. Searches where `FamilyParentProject::mainFiles()` does.
QStringList closedFolders(const QString& folder);

}  // namespace Family
