#pragma once

#include <QImage>

namespace Family {

class PlacedPicture;

/// How a picture is blended with what is below it. All modes except `Over` need an opaque
/// background.
enum class Mixture { Over, Add, Subtract, Multiply };

/// A software canvas that draws like GL on the stage: a pixel shows what is under its centre, and
/// source alpha blends the new colour with the old one, in 8 bits.
class PictureRaster
{
public:
    /// Draws on an image of `Format_ARGB32` or `Format_Indexed8`. The caller owns the image, which
    /// must outlive this object. `topLeft` is the stage pixel at its corner.
    PictureRaster(QImage* image, QPoint topLeft);

    /// Does nothing if the picture's size differs from that of `place`. An indexed image accepts
    /// only indexed pictures and copies their indices. On a colour image, an index without a colour
    /// is drawn black, and only there `mixture` has an effect.
    void draw(const PlacedPicture& place, const QImage& picture, Mixture mixture = Mixture::Over);

    /// Fills a rectangle of the stage; for colour images only.
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
