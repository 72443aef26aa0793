#pragma once

#include "operations/create/mannequin.h"

namespace Operations {

/// Draws a picture of the template "training-room": 0,0 is a wall of 960 by 360, 0,1 a floor of 960
/// by 114. Any other sprite is a plain tile.
PlacedDrawing drawRoom(Family::AssetId id);

}  // namespace Operations
