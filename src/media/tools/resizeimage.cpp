#include "media/tools/resizeimage.h"

#include "media/tools/indexsnap_p.h"
#include "media/tools/raster_p.h"
#include "media/tools/resizebilinear_p.h"

#include <algorithm>
#include <vector>

namespace Zorv {

namespace {

/// For each of `to` pixels the one of `from` that its centre lies in.
std::vector<int> nearestPositions(int from, int to)
{
    std::vector<int> positions;
    positions.reserve(std::size_t(to));
    for (int i = 0; i < to; ++i) {
        positions.push_back(int((2 * qint64(i) + 1) * from / (2 * qint64(to))));
    }
    return positions;
}

template <class Pixel>
void resizeRows(const Raster<const Pixel>& from, const Raster<Pixel>& to)
{
    const std::vector<int> columns = nearestPositions(from.width, to.width);
    const std::vector<int> rows = nearestPositions(from.height, to.height);
    for (int y = 0; y < to.height; ++y) {
        Pixel* pixels = to.row(y);
        if (y > 0 && rows[std::size_t(y)] == rows[std::size_t(y - 1)]) {
            std::copy_n(to.row(y - 1), to.width, pixels);
            continue;
        }
        const Pixel* row = from.row(rows[std::size_t(y)]);
        for (const int x : columns) {
            *pixels++ = row[x];
        }
    }
}

QImage resizeNearest(const QImage& image, const QSize& size)
{
    QImage result = imageLike(image, size);
    if (!result.isNull()) {
        withRasters(image, result, [](const auto& from, const auto& to) { resizeRows(from, to); });
    }
    return result;
}

QImage resizeWork(const QImage& image, const QSize& size, ImageResizeFilter filter)
{
    switch (filter) {
    case ImageResizeFilter::Bilinear:
        return resizeBilinear(comparableImage(image), size);
    default:
        return resizeNearest(image, size);
    }
}

bool mixesColors(ImageResizeFilter filter)
{
    return filter == ImageResizeFilter::Bilinear || filter == ImageResizeFilter::Hq;
}

}  // namespace

QImage resizeImage(const QImage& image, const QSize& size, ImageResizeFilter filter)
{
    const QImage work = workingImage(image);
    if (work.isNull() || work.size() == size) {
        return work;
    }
    if (!mixesColors(filter) || work.format() != QImage::Format_Indexed8) {
        return resizeWork(work, size, filter);
    }
    QImage result = resizeNearest(work, size);
    if (!result.isNull() && result.colorCount() > 0) {
        const QImage colors = resizeWork(colorsOf(work), size, filter);
        if (colors.isNull()) {
            return {};
        }
        snapToColors(result, colors);
    }
    return result;
}

QImage scaleEpx(const QImage& image, int factor)
{
    return factor < 2 || factor > 4
               ? QImage()
               : resizeImage(image, image.size() * factor, ImageResizeFilter::Nearest);
}

QImage scaleHq(const QImage& image, int factor)
{
    return factor < 2 || factor > 4
               ? QImage()
               : resizeImage(image, image.size() * factor, ImageResizeFilter::Bilinear);
}

}  // namespace Zorv
