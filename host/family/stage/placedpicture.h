#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace Family {

struct FramePose;

/// A posed picture at a zoom: maps between its pixels and those of the stage.
///
/// Stage coordinates are in stage pixels from the origin, y downward. Rounding equals that of
/// `Zorv::GraphicsRenderer`, and a stage pixel shows what is under its centre. The picture is
/// shifted right and down by a fraction of a pixel ("hair"): otherwise, at many zooms and scales,
/// pixel centres fall exactly between two texels, where graphics drivers round differently.
/// Positions that do not fit into integers are clamped to about 2^28.
class PlacedPicture
{
public:
    /// The shift in fractions of a stage pixel; drivers place corners in such steps. It differs in
    /// x and y, so that after a rotation by 45 degrees both directions keep some of it.
    static constexpr int HairParts = 256;
    static constexpr int HairX = 4;
    static constexpr int HairY = 7;

    /// A part of a stage line that the picture covers. Positions in the picture have 32 fractional
    /// bits.
    struct Span
    {
        int first = 0;
        int count = 0;
        qint64 u = 0;  ///< position in the picture at `first`
        qint64 v = 0;
        qint64 du = 0;  ///< change from one stage pixel to the next
        qint64 dv = 0;
    };

    /// Covers nothing if the picture, the scale or the zoom makes it empty, or the angle is not a
    /// number.
    PlacedPicture(const FramePose& pose, float zoom);

    /// The size of the picture itself.
    QSize pictureSize() const { return m_texels; }

    /// The bounding rectangle of the covered stage pixels; may be empty.
    QRect bounds() const { return m_bounds; }

    /// The pixel of the picture shown at a stage pixel; (-1,-1) outside.
    QPoint pixelAt(QPoint stage) const;

    /// True if the picture is not rotated: its columns and rows stay columns and rows.
    bool isUpright() const { return m_isUpright; }

    /// If upright: the column or row of the picture shown there. Only valid inside `bounds()`.
    int columnAt(int x) const;
    int rowAt(int y) const;

    /// If not upright: the part of a stage line that shows the picture. All its positions are
    /// inside the picture.
    Span spanAt(int y) const;

private:
    QRect coveredByTurned() const;
    static int texelOf(int distance, int pixels, int texels, bool isReversed, int hair);

    QPoint m_base;    // centre of rotation
    QPoint m_corner;  // relative to `m_base`, before the rotation
    QSize m_size;     // on the stage; negative: extends to the left or up
    QSize m_texels;
    bool m_mirrored = false;
    bool m_upsideDown = false;
    bool m_isUpright = true;
    double m_cos = 1;
    double m_sin = 0;
    QRect m_bounds;
};

/// Converts a length from game pixels to stage pixels, rounded like the stage.
int stageLength(int length, float zoom);

/// The same for a position, each coordinate separately.
QPoint stagePoint(QPoint point, float zoom);

}  // namespace Family
