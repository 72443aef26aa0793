#pragma once

#include <QString>

namespace Operations {

/// Puts what the program ships for code editing into the person's data folder,
/// `FamilyEngineModel::dataPath()`: snippets, and the words to complete. Call it once
/// at the start of the window, with the language installed.
///
/// A snippet comes once for each of its versions: one that the person has deleted does
/// not come back, one that the person has changed is not touched. The file of words is
/// written anew as long as it is the program's own. Which version was put there stands
/// in the file "shipped" of the folder.
///
/// False, with the first reason, if something could not be written; the rest is there,
/// and the files that were there are whole.
bool prepareFamilyData(QString* error);

}  // namespace Operations
