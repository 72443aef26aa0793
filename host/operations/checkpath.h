#pragma once

#include "family/check/problem.h"

namespace Family {

/// As `checkGame()`, with file names that can be opened from the current
/// folder: they begin as `path` does.
Problems checkPath(const QString& path, QString* error);

}  // namespace Family
