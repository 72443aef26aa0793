#pragma once

#include "family/check/problem.h"

#include <QStringList>

namespace Family {

struct SourceText;

/// All problems of a text: those of single lines, which equal the messages of a document, and those
/// that involve several lines. Does not look for the files that it names. `file` is the file name
/// in the problems.
Problems checkText(const SourceText& source, const QString& file);

/// All problems of a game folder on disk, with every project below it. `path` can also be a folder
/// in a game, a main file, or a single file of code, sprites or sounds. File names in the problems
/// are relative to `checkedFolder()`. If there is nothing to check, sets `error` and returns no
/// problems.
Problems checkGame(const QString& path, QString* error);

/// The absolute path to which the names in the problems of `checkGame(path)` are relative: the game
/// of a folder or main file. Empty for a single code file, whose name is used as given.
QString checkedFolder(const QString& path);

}  // namespace Family
