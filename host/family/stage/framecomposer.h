#pragma once

#include "family/assets/palettelist.h"
#include "family/stage/framepose.h"

#include <QCache>
#include <QColor>
#include <QCoreApplication>
#include <QImage>
#include <QRect>

#include <memory>

namespace Zorv {
class AnimationCode;
}

namespace Family {

class FamilySprite;
class FrameNode;
class SpriteCollection;

/// What to draw of a frame, and how.
struct FrameStyle
{
    enum Part {
        Sprite = 1,  ///< in its pose
        Boxes = 2,   ///< attack and body boxes
        Axis = 4     ///< the main cross, at the origin
    };
    Q_DECLARE_FLAGS(Parts, Part)

    Parts parts = Sprite;
    float zoom = 1;  ///< picture pixels per game pixel, above 0 up to `MaxZoom`
    QColor attack{0xff, 0x5a, 0x4a};
    QColor body{0x4a, 0xa8, 0xff};
    double boxOpacity = 0.5;  ///< a factor for the half-transparent inside of boxes

    static constexpr float MaxZoom = 64;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FrameStyle::Parts)

/// Draws frames like the stage, without a stage: same positions, same pixels.
///
/// Areas are in picture pixels: game pixels times the zoom, from the origin of the animation, y
/// downward. Caches up to 256 MiB of unpacked sprites: make a new composer after sprites or
/// palettes have changed. Use it in the thread of the sprites.
///
/// Things that cannot be drawn are reported in `error`, which otherwise stays unchanged.
class FrameComposer
{
    Q_DECLARE_TR_FUNCTIONS(Family::FrameComposer)

public:
    /// The maximum size of one picture.
    static constexpr qint64 MaxPixels = qint64(1) << 26;

    /// `sprites` may be null for a game without sprites, and must outlive the composer. `colors`,
    /// if not null, replaces the palette of indexed sprites.
    FrameComposer(const SpriteCollection* sprites, const FrameStyle& style,
                  const PaletteColors* colors = nullptr);
    ~FrameComposer();

    const FrameStyle& style() const { return m_style; }

    /// The bounding rectangle of everything drawn of a frame; empty if nothing is. A missing sprite
    /// is an error; the rest still counts. Unpacks nothing.
    QRect bounds(const FrameNode& frame, QString* error) const;

    /// The same for all frames of an animation.
    QRect bounds(const Zorv::AnimationCode& animation, QString* error) const;

    /// The area of a rectangle in game coordinates.
    QRect areaOf(const QRect& rect) const;

    /// Draws a frame into an area, as `Format_ARGB32` on a transparent background. Null if the area
    /// is empty or too large for a picture. A missing or broken sprite is an error too, and the
    /// rest is drawn without it.
    QImage compose(const FrameNode& frame, const QRect& area, QString* error);

    /// The same as `Format_Indexed8`, with the colours of the sprite and a transparent index around
    /// it. Only if nothing but an indexed sprite is drawn and an index is free for the background.
    QImage composeIndexed(const FrameNode& frame, const QRect& area, QString* error);

    /// Draws a frame on a picture of `Format_ARGB32`; `topLeft` is the area's pixel at its corner.
    /// On an opaque background the result equals that of the stage.
    void draw(const FrameNode& frame, QImage* image, QPoint topLeft, QString* error);

    /// The pose of a frame's sprite; without a size if the sprite is missing, which is an error.
    FramePose pose(const FrameNode& frame, QString* error) const;

    /// The pixel of a posed picture that is visible at a stage pixel, counted from the origin;
    /// (-1,-1) outside of the picture.
    static QPoint pixelAt(const FramePose& pose, float zoom, QPoint stage);

    /// The colour index visible there, for an indexed picture; -1 outside, for any other picture,
    /// and where the picture is transparent.
    static int colorAt(const QImage& picture, const FramePose& pose, float zoom, QPoint stage);

private:
    const FamilySprite* spriteOf(const FrameNode& frame, QString* error) const;
    QImage pictureOf(const FrameNode& frame, QString* error);
    bool isDrawable(const FrameNode& frame, const QRect& area, QString* error) const;
    QRect boxArea(const QRect& box) const;
    QRect axisArea() const;

    const SpriteCollection* m_sprites;
    FrameStyle m_style;
    QVector<QRgb> m_colors;  // for all indexed sprites; empty: their own colours
    QImage m_axis;           // the cross, in its final size
    QCache<const FamilySprite*, QImage> m_pictures;
};

}  // namespace Family
