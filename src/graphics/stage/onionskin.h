#pragma once

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QSize>

namespace Zorv {

class Sprite;

/// A translucent sprite of another frame, placed as the stage would place it.
///
/// Lengths are model units. A skin with the same pose as a sprite of the stage covers it exactly.
struct OnionSkin
{
    const Sprite* sprite = nullptr;  ///< not owned; null shows nothing
    QPoint axis;                     ///< centre of rotation, relative to the main cross
    QPoint position;                 ///< of the top left corner, relative to `axis`, before `scale`
    QSize size{0, 0};                ///< before `scale`
    QPointF scale{1, 1};
    unsigned char flip = 0;  ///< bits of `Renderer::Flip`
    float rotation = 0;      ///< degrees, clockwise
    float opacity = 1;       ///< 0 to 1, multiplied by the opacity of all skins
    QColor color;            ///< tints the skin strongly; if invalid, the effect applies

    bool operator==(const OnionSkin& other) const
    {
        return sprite == other.sprite && axis == other.axis && position == other.position &&
               size == other.size && scale == other.scale && flip == other.flip &&
               rotation == other.rotation && opacity == other.opacity && color == other.color;
    }
};

}  // namespace Zorv
