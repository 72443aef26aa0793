#pragma once

#include "family/check/problem.h"

namespace Family {

/// As `checkGame()`, with file names that can be opened from the current
/// folder: they begin as `path` does. Folders below it that cannot be read are
/// problems too.
Problems checkPath(const QString& path, QString* error);

}  // namespace Family
