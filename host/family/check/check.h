#pragma once

#include "family/check/problem.h"

#include <QStringList>

namespace Family {

class FamilyDocument;
class FamilyProject;

/// All problems of a document: those of its lines, which are the same as its
/// messages, and those that need several lines. Files that it names are not
/// looked for. `file` is what the problems have for a file.
Problems checkDocument(const FamilyDocument* document, const QString& file);

/// All problems of an open project: of its documents, loaded or not, of files
/// that it names, and of references between them. File names are relative to
/// the root of its parent.
Problems checkProject(const FamilyProject* project);

/// All problems of a game folder, read from disk: every project below it.
/// `gameFolder` can also be a folder in a game, a main file, or a single file of code, sprites or
/// sounds. Names are relative to `checkedFolder()`. `error` is set, and nothing given, if there is
/// nothing to check.
Problems checkGame(const QString& gameFolder, QString* error);

/// The folder to which the names in the problems of `checkGame(path)` are
/// relative, as an absolute path: the game of a folder or main file. Empty for a
/// single code file, whose name is as it was given.
QString checkedFolder(const QString& path);

}  // namespace Family
