#pragma once

#include "family/check/problem.h"

namespace Operations {

/// Like `checkGame()`, but the file names begin as `path` does, so that they can be opened from the
/// current folder.
Family::Problems checkPath(const QString& path, QString* error);

}  // namespace Operations
