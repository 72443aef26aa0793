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

/// What is drawn of a frame, and how.
struct FrameStyle
{
    enum Part {
        Sprite = 1,  ///< in its pose
        Boxes = 2,   ///< attack and body boxes
        Axis = 4     ///< the main cross, at the origin
    };
    Q_DECLARE_FLAGS(Parts, Part)

    Parts parts = Sprite;
    float zoom = 1;  ///< pixels of the picture for one of the game, above 0 up to `MaxZoom`
    QColor attack{0xff, 0x5a, 0x4a};
    QColor body{0x4a, 0xa8, 0xff};
    double boxOpacity = 0.5;  ///< a factor of what is inside of a box, which is half seen through

    static constexpr float MaxZoom = 64;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FrameStyle::Parts)

/// Draws frames as the stage shows them, without a stage: same places, same pixels.
///
/// Areas are in pixels of the picture, which are pixels of the game times the zoom, from the origin
/// of the animation, y downward. Unpacked sprites are kept, up to 256 MiB of them: make a new
/// composer when sprites or palettes have changed. The thread is that of the sprites.
///
/// What cannot be drawn is told in `error`, which otherwise stays as it is.
class FrameComposer
{
    Q_DECLARE_TR_FUNCTIONS(Family::FrameComposer)

public:
    /// The most that one picture may have.
    static constexpr qint64 MaxPixels = qint64(1) << 26;

    /// `sprites` may be null for a game without any, and must outlive the composer. With `colors`
    /// indexed sprites are shown in them.
    FrameComposer(const SpriteCollection* sprites, const FrameStyle& style,
                  const PaletteColors* colors = nullptr);
    ~FrameComposer();

    const FrameStyle& style() const { return m_style; }

    /// The area around all that is drawn of a frame; empty if nothing is. A sprite that is missing
    /// is an error, and the area that of the rest. Nothing is unpacked.
    QRect bounds(const FrameNode& frame, QString* error) const;

    /// The same of all frames of an animation.
    QRect bounds(const Zorv::AnimationCode& animation, QString* error) const;

    /// The area of a rectangle of the game.
    QRect areaOf(const QRect& rect) const;

    /// A frame in an area, of `Format_ARGB32`, over transparent ground. Null for an empty area, or
    /// one that is too large for a picture. A sprite that is missing or broken is an error, too,
    /// and the rest is there without it.
    QImage compose(const FrameNode& frame, const QRect& area, QString* error);

    /// The same of `Format_Indexed8`, with the colours of the sprite and an index with alpha 0
    /// around it, if nothing but an indexed sprite is drawn and an index is left for that.
    QImage composeIndexed(const FrameNode& frame, const QRect& area, QString* error);

    /// Draws a frame on a picture of `Format_ARGB32`, whose corner is that pixel of the area. On
    /// opaque ground that is what the stage shows on the same.
    void draw(const FrameNode& frame, QImage* image, QPoint topLeft, QString* error);

    /// How the sprite of a frame stands; without a size if it is missing, which is an error.
    FramePose pose(const FrameNode& frame, QString* error) const;

    /// Which pixel of a picture in a pose is seen at a pixel of the stage, counted from the origin;
    /// (-1,-1) beside it.
    static QPoint pixelAt(const FramePose& pose, float zoom, QPoint stage);

    /// The index of the colour that is seen there of an indexed picture; -1 beside it, for any
    /// other picture, and where the picture is transparent.
    static int colorAt(const QImage& picture, const FramePose& pose, float zoom, QPoint stage);

private:
    const FamilySprite* spriteOf(const FrameNode& frame, QString* error) const;
    QImage pictureOf(const FrameNode& frame, QString* error);
    bool isDrawable(const FrameNode& frame, const QRect& area, QString* error) const;
    QRect boxArea(const QRect& box) const;
    QRect axisArea() const;

    const SpriteCollection* m_sprites;
    FrameStyle m_style;
    QVector<QRgb> m_colors;  // of all indexed sprites; empty for their own
    QImage m_axis;           // the cross, at its size
    QCache<const FamilySprite*, QImage> m_pictures;
};

}  // namespace Family
