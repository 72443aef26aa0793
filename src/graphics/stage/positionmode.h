#pragma once

#include "zorv_export.h"

namespace Zorv {

/// @name How an item of the stage is placed
/// One byte: two bits tell in which axes it can be moved, the rest what its position is relative
/// to. Positions relative to anything but the widget are in pixels of the game.
/// @{

/// The anchor in a mode.
enum PositionAnchor : unsigned char {
    AbsoluteAnchor = 0,  ///< pixels of the widget, not zoomed
    OriginAnchor = 1,    ///< the origin of the stage
    CrossAnchor = 2,     ///< the cross with the number of the parent
    SpriteAnchor = 3     ///< the sprite with the number of the parent
};

/// The bits of movability.
enum PositionMobility : unsigned char { MovableX = 4, MovableY = 8, MovableBoth = 12 };

/// The anchor of a mode: the byte without its bits of movability.
ZORV_EXPORT unsigned char positionMode(unsigned char mode);

ZORV_EXPORT bool isMovable(unsigned char mode);
ZORV_EXPORT bool isMovableX(unsigned char mode);
ZORV_EXPORT bool isMovableY(unsigned char mode);

/// @}

}  // namespace Zorv
