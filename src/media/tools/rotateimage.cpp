#include "media/tools/rotateimage.h"

#include "media/tools/raster_p.h"

#include <QtMath>

#include <cmath>

namespace Zorv {

namespace {

/// The turn of a plane about the centres of two images, from the result back to the source.
struct Turn
{
    double cosine;
    double sine;
    QSize from;
    QSize to;
};

template <class Pixel>
void turnNearest(const Turn& turn, const Raster<const Pixel>& from, const Raster<Pixel>& to,
                 Pixel fill)
{
    for (int y = 0; y < to.height; ++y) {
        Pixel* pixels = to.row(y);
        const double v = y + 0.5 - to.height / 2.0;
        for (int x = 0; x < to.width; ++x) {
            const double u = x + 0.5 - to.width / 2.0;
            const double sx = std::floor(u * turn.cosine + v * turn.sine + from.width / 2.0);
            const double sy = std::floor(v * turn.cosine - u * turn.sine + from.height / 2.0);
            const bool inside = sx >= 0 && sy >= 0 && sx < from.width && sy < from.height;
            pixels[x] = inside ? from.row(int(sy))[int(sx)] : fill;
        }
    }
}

}  // namespace

QImage rotateImage(const QImage& image, float degrees, unsigned int fill, ImageResizeFilter)
{
    QImage work = workingImage(image);
    if (work.format() == QImage::Format_RGB32 && qAlpha(fill) != 255) {
        work = work.convertToFormat(QImage::Format_ARGB32);
    }
    const double angle = std::isfinite(degrees) ? std::fmod(double(degrees), 360.0) : 0;
    if (work.isNull() || angle == 0) {
        return work;
    }
    const double radians = qDegreesToRadians(angle);
    const Turn turn = {std::cos(radians), std::sin(radians), work.size(), {}};
    const auto side = [](double a, double b) {
        return int(std::ceil(std::abs(a) + std::abs(b) - 1e-3));
    };
    QImage result = imageLike(work, {side(work.width() * turn.cosine, work.height() * turn.sine),
                                     side(work.width() * turn.sine, work.height() * turn.cosine)});
    if (!result.isNull()) {
        withRasters(work, result, [&turn, fill](const auto& from, const auto& to) {
            turnNearest(turn, from, to, std::decay_t<decltype(*to.bits)>(fill));
        });
    }
    return result;
}

}  // namespace Zorv
