#pragma once

#include <QImage>
#include <QSize>

namespace Zorv {

/// A turn of images about their centres, clockwise in degrees.
///
/// The images may be larger or smaller than the size that it was made for: the whole of the source
/// always covers the same part of the result. With a `fill` that is not opaque, `Format_RGB32`
/// becomes `Format_ARGB32`.
class ImageTurn
{
public:
    /// A point of the source, in parts of 2 to the power of 32 of a pixel.
    struct Point
    {
        qint64 x;
        qint64 y;
    };
    /// The way through the source that a row of the result takes.
    struct Path
    {
        Point start;
        Point step;
    };

    ImageTurn(const QSize& size, double degrees);

    /// The size that an image of the original size needs.
    QSize resultSize() const { return m_resultSize; }

    /// Each pixel of the result is the one of a working image that its centre lies in, which is
    /// comparable if it has no alpha. `fill` stands where there is none. Null if the size is not
    /// possible or memory is short.
    QImage nearest(const QImage& image, quint32 fill, const QSize& size) const;

    /// The same with a mixture of the four pixels around, of an image with true colours.
    QImage bilinear(const QImage& image, quint32 fill, const QSize& size) const;

private:
    struct Span
    {
        int first;
        int end;
    };

    /// An image, the area from which points are taken, and how far that begins before it.
    struct Source
    {
        QSize size;
        QSize area;
        double shift;
    };

    Path path(int row, const Source& source, const QSize& to) const;
    static void clip(Span& span, qint64 start, qint64 step, qint64 limit);

    template <class Pixel, class Sample>
    void draw(const Source& source, QImage& to, quint32 fill, Sample sample) const;

    QSize m_size;
    QSize m_resultSize;
    double m_cosine;
    double m_sine;
};

}  // namespace Zorv
