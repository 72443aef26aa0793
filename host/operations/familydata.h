#pragma once

#include <QString>

namespace Operations {

/// Copies the shipped data for code editing (snippets and completion words) to the user's data
/// folder, `FamilyEngineModel::dataPath()`. Call it once when the window starts, with the language
/// installed.
///
/// Each version of a snippet is copied only once, so a snippet that the user deleted does not come
/// back, and one that the user changed is not overwritten. The word file is rewritten as long as it
/// is the program's own. The file "shipped" in the folder records the copied versions.
///
/// False, with the first reason, if something could not be written. The rest is then still copied,
/// and existing files are intact.
bool prepareFamilyData(QString* error);

}  // namespace Operations
