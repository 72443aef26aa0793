#pragma once

#include "zorv_export.h"

namespace Zorv {

/// @name How an item of the stage is placed
/// One byte. Two bits say along which axes the item can be moved; the rest is the anchor, which the
/// position is relative to. Positions are in pixels of the game, except those relative to the
/// widget.
/// @{

/// What a position is relative to.
enum PositionAnchor : unsigned char {
    AbsoluteAnchor = 0,  ///< pixels of the widget, not zoomed
    OriginAnchor = 1,    ///< the origin of the stage
    CrossAnchor = 2,     ///< the cross with the number of the parent
    SpriteAnchor = 3     ///< the sprite with the number of the parent
};

/// The axes along which an item can be moved.
enum PositionMobility : unsigned char { MovableX = 4, MovableY = 8, MovableBoth = 12 };

/// The anchor of a mode, without the mobility bits.
ZORV_EXPORT unsigned char positionMode(unsigned char mode);

ZORV_EXPORT bool isMovable(unsigned char mode);
ZORV_EXPORT bool isMovableX(unsigned char mode);
ZORV_EXPORT bool isMovableY(unsigned char mode);

/// @}

}  // namespace Zorv
