#pragma once

#include "operations/filechanges.h"

namespace Cli {

/// Like `Operations::changeAsOne()`. Returns the status of the last call of `change`, and prints
/// only the messages of that call.
int changeFile(const QString& fileName, const std::function<int()>& change,
               Operations::Others others = Operations::Others::Wait);

}  // namespace Cli
