#pragma once

#include <QStringList>

namespace Family {

/// The projects below a game folder that cannot be opened, for their path is no text in the
/// encoding of the system: nothing that lists files tells of them. Looks where
/// `FamilyParentProject::mainFiles()` does. Gives the paths relative to the game of the first
/// folder or main file on the way with such a name; each byte that is no text stands as "\xff".
QStringList unnamedProjects(const QString& gameFolder);

/// What a person is told of one of them.
QString unnamedProjectText(const QString& path);

}  // namespace Family
