#pragma once

#include "picture/look.h"

#include <QPointF>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// The visible part of a stage. One pixel of the picture is one pixel of the game.
///
/// The middle follows both fighters, within the limits of the stage. Zooming changes the size of
/// the picture; the window scales it to its own size.
struct Camera
{
    /// Larger pictures are drawn scaled down, by `zoom`.
    static constexpr QSize LargestPicture{1920, 1080};

    QSize size;         ///< of the picture, in pixels
    float zoom = 1;     ///< picture pixels per game pixel
    double x = 0;       ///< middle, in stage coordinates
    double y = 0;       ///< likewise, at the normal distance
    double rest = 0;    ///< `y` while both stand on the floor: layers are then at their written
                        ///< places
    double bottom = 0;  ///< distance from `y` to the lower edge, at any zoom
    QPoint shake;

    /// The pixel of a point of the stage, for something that follows the camera by these factors.
    QPointF at(double placeX, double placeY, double followX = 1, double followY = 1) const;
};

Camera cameraOf(const StageLook& look, const Rules::Game& game, const Rules::State& state);

}  // namespace Player
