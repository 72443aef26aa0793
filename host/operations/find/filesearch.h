#pragma once

#include "operations/find/textsearch.h"

#include <QStringList>

#include <functional>

namespace Operations {

/// Searches files on all processors, and hands over those with hits or with an error, in the order
/// of the paths. False if the person has given up. Called in the main thread.
bool searchFiles(const QStringList& paths, const FindPattern& pattern,
                 const std::function<void(const FileHits&)>& take);

}  // namespace Operations
