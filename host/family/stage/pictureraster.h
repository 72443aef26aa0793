#pragma once

#include <QImage>

namespace Family {

class PlacedPicture;

/// How a picture goes together with what lies below it, which is opaque for all but `Over`.
enum class Mixture { Over, Add, Subtract, Multiply };

/// An image that things are drawn on, as GL does it on the stage: a pixel shows what lies under its
/// centre, and source alpha weighs the new colour against the old one, into 8 bits.
class PictureRaster
{
public:
    /// Draws on an image of `Format_ARGB32`, or of `Format_Indexed8`, that belongs to the caller
    /// and outlives this object. `topLeft` is the pixel of the stage at its corner.
    PictureRaster(QImage* image, QPoint topLeft);

    /// Nothing for a picture of another size than was placed. An image of indices takes indexed
    /// pictures alone, and their indices as they are. Where colours are drawn, an index that the
    /// picture has no colour for is black, and only there is a mixture minded.
    void draw(const PlacedPicture& place, const QImage& picture, Mixture mixture = Mixture::Over);

    /// For an image of colours: the pixels of a rectangle of the stage.
    void fill(const QRect& rect, QRgb color);

private:
    template <class To>
    To* at(int x, int y) const;
    template <class To, class From, class Mix>
    void putUpright(const PlacedPicture& place, const QImage& picture, Mix mix);
    template <class To, class From, class Mix>
    void putTurned(const PlacedPicture& place, const QImage& picture, Mix mix);
    template <class To, class From, class Mix>
    void put(const PlacedPicture& place, const QImage& picture, Mix mix);
    template <class Mix>
    void putColors(const PlacedPicture& place, const QImage& picture, Mix mix);

    QImage* m_image;
    QRect m_area;
    uchar* m_bits;
};

}  // namespace Family
