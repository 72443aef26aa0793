#pragma once

#include "operations/filechanges.h"

namespace Cli {

/// As `Family::changeAsOne()`; gives the status of the last call of `change`, and only what that
/// has said is told.
int changeFile(const QString& fileName, const std::function<int()>& change,
               Operations::Others others = Operations::Others::Wait);

}  // namespace Cli
