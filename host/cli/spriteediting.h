#pragma once

#include "cli/spriteopening.h"

#include <functional>

namespace Cli {

/// Opens the sprites of a file, edits them, and writes them if anything has changed and the status
/// that `edit` gives is fine; as one beside other programs, with the progress shown. Gives the
/// status. `edit` may be called several times.
int editSpriteFile(const QString& fileName, OpenSprites::Kind kind,
                   const std::function<int(Family::SpriteCollection*)>& edit);

}  // namespace Cli
