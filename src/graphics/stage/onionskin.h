#pragma once

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QSize>

namespace Zorv {

class Sprite;

/// The sprite of another frame, seen through, as it would stand on the stage.
///
/// Lengths are model units. A skin whose pose is that of a sprite of the stage lies right over it.
struct OnionSkin
{
    const Sprite* sprite = nullptr;  ///< not owned; null shows nothing
    QPoint axis;                     ///< what it is turned about, from the main cross
    QPoint position;                 ///< of the top left corner from there, before `scale`
    QSize size{0, 0};                ///< before `scale`
    QPointF scale{1, 1};
    unsigned char flip = 0;  ///< bits of `Renderer::Flip`
    float rotation = 0;      ///< degrees, clockwise
    float opacity = 1;       ///< times that of all skins, 0 to 1
    QColor color;            ///< the skin's colours go most of the way to it; invalid: the effect

    bool operator==(const OnionSkin& other) const
    {
        return sprite == other.sprite && axis == other.axis && position == other.position &&
               size == other.size && scale == other.scale && flip == other.flip &&
               rotation == other.rotation && opacity == other.opacity && color == other.color;
    }
};

}  // namespace Zorv
