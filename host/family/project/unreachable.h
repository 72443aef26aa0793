#pragma once

#include <QString>

namespace Family {

/// Why a file or folder cannot be looked at though something may be there: its folders, or itself
/// as a folder, are closed. In words for the person; empty if it can be read, or nothing is there.
QString unreachable(const QString& path);

/// The same, or else `otherwise`, with the path in the place of its "%1".
QString orUnreachable(const QString& otherwise, const QString& path);

}  // namespace Family
