#include "media/tools/rotateimage.h"

#include "media/tools/imageturn_p.h"
#include "media/tools/indexsnap_p.h"
#include "media/tools/raster_p.h"
#include "media/tools/resizebilinear_p.h"
#include "media/tools/resizeimage.h"

#include <QRgb>
#include <QTransform>

#include <cmath>

namespace Zorv {

namespace {

/// The image enlarged by the largest possible factor of 4, 2 and 1, at most `most`.
QImage enlarged(const QImage& image, int most, QImage (*scale)(const QImage&, int))
{
    int factor = most;
    while (factor > 1 && !isPossibleSize(image.size() * factor)) {
        factor /= 2;
    }
    return factor > 1 ? scale(image, factor) : image;
}

/// Rotates a true-colour image by mixing colours.
QImage turnMixing(const QImage& image, const ImageTurn& turn, QRgb fill, ImageResizeFilter filter)
{
    if (filter != ImageResizeFilter::Hq) {
        return turn.bilinear(image, fill, turn.resultSize());
    }
    // Drawn at double size, so that smooth borders stay smooth when reduced.
    const QSize size = turn.resultSize();
    const QSize doubled = isPossibleSize(size * 2) ? size * 2 : size;
    const QImage large = turn.bilinear(enlarged(image, 2, scaleHq), fill, doubled);
    return large.isNull() || doubled == size ? large : resizeBilinear(large, size);
}

QImage turned(const QImage& work, const ImageTurn& turn, unsigned int fill,
              ImageResizeFilter filter)
{
    if (filter == ImageResizeFilter::Epx) {
        return turn.nearest(enlarged(work, 4, scaleEpx), fill, turn.resultSize());
    }
    const bool mixes = filter == ImageResizeFilter::Bilinear || filter == ImageResizeFilter::Hq;
    if (mixes && !isIndexed(work)) {
        return turnMixing(work, turn, fill, filter);
    }
    // Without mixing, transparent pixels keep their colour.
    const QImage source = work.hasAlphaChannel() ? work : comparableImage(work);
    QImage result = turn.nearest(source, fill, turn.resultSize());
    if (mixes && work.colorCount() > 0 && !result.isNull()) {
        const QRgb color = fill < unsigned(work.colorCount()) ? work.color(int(fill)) : 0;
        const QImage colors = turnMixing(colorsOf(work), turn, color, filter);
        if (colors.isNull()) {
            return {};
        }
        snapToColors(result, colors);
    }
    return result;
}

}  // namespace

QImage rotateImage(const QImage& image, float degrees, unsigned int fill, ImageResizeFilter filter)
{
    const QImage work = workingImage(image);
    if (!isPossibleSize(work.size()) || !std::isfinite(degrees)) {
        return {};
    }
    const double angle = std::fmod(double(degrees), 360.0);
    if (std::fmod(angle, 90.0) == 0) {
        return work.transformed(QTransform().rotate(angle));
    }
    return turned(work, ImageTurn(work.size(), angle), fill, filter);
}

}  // namespace Zorv
