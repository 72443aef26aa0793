#pragma once

#include <QImage>
#include <QSize>

namespace Zorv {

/// A rotation of images about their centres, in degrees clockwise.
///
/// Images may be larger or smaller than the size given to the constructor: the whole source always
/// covers the same part of the result. If `fill` is not opaque, `Format_RGB32` becomes
/// `Format_ARGB32`.
class ImageTurn
{
public:
    /// A point in the source, as 32.32 fixed-point pixels.
    struct Point
    {
        qint64 x;
        qint64 y;
    };
    /// The straight line through the source that a row of the result follows.
    struct Path
    {
        Point start;
        Point step;
    };

    ImageTurn(const QSize& size, double degrees);

    /// The result size for an image of the size given to the constructor.
    QSize resultSize() const { return m_resultSize; }

    /// Takes, for each result pixel, the source pixel that contains its centre. The source is a
    /// working image, comparable if it has no alpha. `fill` is used outside the source. Null if the
    /// size is not possible or memory is short.
    QImage nearest(const QImage& image, quint32 fill, const QSize& size) const;

    /// The same with a mixture of the four surrounding pixels, for true-colour images.
    QImage bilinear(const QImage& image, quint32 fill, const QSize& size) const;

private:
    struct Span
    {
        int first;
        int end;
    };

    /// The size of an image, the area from which points are sampled, and how far that area begins
    /// before the image.
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
