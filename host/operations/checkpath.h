#pragma once

#include "family/check/problem.h"

namespace Operations {

/// As `checkGame()`, with file names that can be opened from the current
/// folder: they begin as `path` does. Folders below it that cannot be read are
/// problems too.
Family::Problems checkPath(const QString& path, QString* error);

}  // namespace Operations
