#pragma once

#include <QString>

namespace Operations {

/// Draws what a new project shows and does not have: if its main file names a sprite file that is
/// not there, that file is made, with a placeholder for each sprite of its frames and layers.
/// False, with `error` for the person, if that fails.
bool drawPlaceholders(const QString& mainFile, QString* error);

}  // namespace Operations
