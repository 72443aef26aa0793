#pragma once

#include "family/check/problem.h"

#include <QStringList>

namespace Family {

struct SourceText;

/// All problems of a text: those of its lines, which are the same as the messages of a document,
/// and those that need several lines. Files that it names are not looked for. `file` is what the
/// problems have for a file.
Problems checkText(const SourceText& source, const QString& file);

/// All problems of a game folder, as it lies on the disk: every project below it.
/// `path` can also be a folder in a game, a main file, or a single file of code, sprites or
/// sounds. Names are relative to `checkedFolder()`. `error` is set, and nothing given, if there is
/// nothing to check.
Problems checkGame(const QString& path, QString* error);

/// The folder to which the names in the problems of `checkGame(path)` are
/// relative, as an absolute path: the game of a folder or main file. Empty for a
/// single code file, whose name is as it was given.
QString checkedFolder(const QString& path);

}  // namespace Family
