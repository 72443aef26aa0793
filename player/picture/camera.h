#pragma once

#include "picture/look.h"

#include <QPointF>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// Which part of a stage is seen, at the size at which pixels of the game are those of the picture.
///
/// The middle goes with both fighters inside of what the stage allows. Nearer or farther is a
/// smaller or larger picture, which the window shows at its own size.
struct Camera
{
    /// Larger pictures are drawn smaller, by `zoom`.
    static constexpr QSize LargestPicture{1920, 1080};

    QSize size;         ///< of the picture, in its pixels
    float zoom = 1;     ///< pixels of the picture for one of the game
    double x = 0;       ///< of the middle, on the stage
    double y = 0;       ///< likewise, at the usual distance
    double rest = 0;    ///< `y` while both stand on the floor: there layers lie as they are written
    double bottom = 0;  ///< from `y` to the lower edge, whatever the distance
    QPoint shake;

    /// The pixel of a place of the stage, for what follows the camera so far.
    QPointF at(double placeX, double placeY, double followX = 1, double followY = 1) const;
};

Camera cameraOf(const StageLook& look, const Rules::Game& game, const Rules::State& state);

}  // namespace Player
