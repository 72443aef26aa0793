#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace Family {

struct FramePose;

/// A picture in a pose at a zoom: which of its pixels stands where on the stage.
///
/// The stage is counted in its own pixels from the origin, y downward. Everything is rounded as
/// `Zorv::GraphicsRenderer` does it, and a pixel of the stage shows what lies under its centre. The
/// picture stands a hair to the right and below, for centres would else lie right between two of
/// its pixels at many zooms and scales, where any graphics driver shows another one. What is too
/// far away for whole numbers stands at about 2^28.
class PlacedPicture
{
public:
    /// The hair, in parts of a pixel of the stage: the steps by which drivers place corners. It
    /// differs in x and y, so that an eighth of a turn leaves some of it in both.
    static constexpr int HairParts = 256;
    static constexpr int HairX = 4;
    static constexpr int HairY = 7;

    /// A part of a line of the stage that the picture covers. Places in the picture have 32 bits
    /// behind the point.
    struct Span
    {
        int first = 0;
        int count = 0;
        qint64 u = 0;  ///< the place in the picture at `first`
        qint64 v = 0;
        qint64 du = 0;  ///< from one pixel of the stage to the next
        qint64 dv = 0;
    };

    /// Stands nowhere if the picture, the scale or the zoom leave nothing of it, or the angle is no
    /// number.
    PlacedPicture(const FramePose& pose, float zoom);

    /// The size of the picture itself.
    QSize pictureSize() const { return m_texels; }

    /// Around the pixels of the stage that it covers; empty without any.
    QRect bounds() const { return m_bounds; }

    /// The pixel of the picture that the stage shows at one of its own; (-1,-1) beside it.
    QPoint pixelAt(QPoint stage) const;

    /// True for a picture that is not turned: each of its columns and rows stays one.
    bool isUpright() const { return m_isUpright; }

    /// For an upright one: the column or row of the picture that is shown there. Inside of
    /// `bounds()` alone.
    int columnAt(int x) const;
    int rowAt(int y) const;

    /// For any other: what a line of the stage shows of it, all of which lies inside of the
    /// picture.
    Span spanAt(int y) const;

private:
    QRect coveredByTurned() const;
    static int texelOf(int distance, int pixels, int texels, bool isReversed, int hair);

    QPoint m_base;    // about which it is turned
    QPoint m_corner;  // from there, before the turn
    QSize m_size;     // on the stage; negative sides reach to the left and up
    QSize m_texels;
    bool m_mirrored = false;
    bool m_upsideDown = false;
    bool m_isUpright = true;
    double m_cos = 1;
    double m_sin = 0;
    QRect m_bounds;
};

/// A length in pixels of the game as one of the stage, rounded as the stage does it.
int stageLength(int length, float zoom);

/// The same of places, each by itself.
QPoint stagePoint(QPoint point, float zoom);

}  // namespace Family
