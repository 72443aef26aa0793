#pragma once

#include "family/assets/assetid.h"

#include <QImage>
#include <QPoint>

namespace Operations {

/// A picture with its axis, in pixels from its top left corner.
struct PlacedDrawing
{
    QImage image;  ///< `Format_Indexed8`; colour 0 is clear
    QPoint axis;
};

/// A jointed figure in the pose of a sprite: group and number are those of the template "fighter",
/// the group being the animation that shows it. One without a pose of its own stands.
/// About 100 pixels high, looks to the right, its axis is between the feet.
PlacedDrawing drawMannequin(Family::AssetId id);

}  // namespace Operations
