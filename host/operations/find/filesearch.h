#pragma once

#include "operations/find/textsearch.h"

#include <QStringList>

#include <functional>

namespace Operations {

/// Searches files on all processors. `take` receives the files with hits or errors, in path order.
/// False if the user canceled. Call it in the main thread.
bool searchFiles(const QStringList& paths, const FindPattern& pattern,
                 const std::function<void(const FileHits&)>& take);

}  // namespace Operations
