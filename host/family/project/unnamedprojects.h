#pragma once

#include <QStringList>

namespace Family {

/// Finds the projects below a game folder that cannot be opened because their path is not valid in
/// the system's encoding; Qt does not list such files at all. Searches where
/// `FamilyParentProject::mainFiles()` does. Returns, relative to the game, the first folder or main
/// file with such a name on each path; each invalid byte becomes "\xff".
QStringList unnamedProjects(const QString& gameFolder);

/// The message for the user about one of them.
QString unnamedProjectText(const QString& path);

}  // namespace Family
