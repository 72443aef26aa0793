#pragma once

#include "family/assets/assetid.h"

#include <QImage>
#include <QPoint>

namespace Operations {

/// A picture and its axis, in pixels from its top left corner.
struct PlacedDrawing
{
    QImage image;  ///< `Format_Indexed8`; colour 0 is transparent
    QPoint axis;
};

/// Draws a jointed figure in the pose of a sprite. Groups and numbers are those of the template
/// "fighter", where the group is the animation that shows the sprite. A sprite without its own pose
/// gets the standing one. The figure is about 100 pixels high, looks to the right, and has its axis
/// between the feet.
PlacedDrawing drawMannequin(Family::AssetId id);

}  // namespace Operations
