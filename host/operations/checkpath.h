#pragma once

#include "family/check/problem.h"

namespace Operations {

/// As `checkGame()`, with file names that can be opened from the current
/// folder: they begin as `path` does.
Family::Problems checkPath(const QString& path, QString* error);

}  // namespace Operations
