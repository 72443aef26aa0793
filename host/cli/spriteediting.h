#pragma once

#include "cli/spriteopening.h"

#include <functional>

namespace Cli {

/// Opens the sprites of a file and edits them, with progress. Saves them if anything has changed
/// and `edit` returned `Fine`. Changes by other programs meanwhile are detected, so `edit` may be
/// called several times. Returns the status.
int editSpriteFile(const QString& fileName, OpenSprites::Kind kind,
                   const std::function<int(Family::SpriteCollection*)>& edit);

}  // namespace Cli
