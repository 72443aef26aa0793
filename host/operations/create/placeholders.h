#pragma once

#include <QString>

namespace Operations {

/// Draws the missing sprites of a new project. If the main file names a sprite file that does not
/// exist, creates it with a placeholder for each sprite that frames and layers use. False, with
/// `error` for the user, if that fails.
bool drawPlaceholders(const QString& mainFile, QString* error);

}  // namespace Operations
