#include "media/tools/resizeimage.h"

#include "media/tools/bytegather_p.h"
#include "media/tools/indexsnap_p.h"
#include "media/tools/raster_p.h"
#include "media/tools/resizebilinear_p.h"
#include "media/tools/scaleepx_p.h"
#include "media/tools/scalehq_p.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Zorv {

namespace {

/// For each of `to` pixels, the one of `from` pixels that contains its centre.
std::vector<int> nearestPositions(int from, int to)
{
    std::vector<int> positions;
    positions.reserve(std::size_t(to));
    for (int i = 0; i < to; ++i) {
        positions.push_back(int((2 * qint64(i) + 1) * from / (2 * qint64(to))));
    }
    return positions;
}

/// Copies the pixels at fixed positions, for many rows.
template <class Pixel>
class Gather
{
public:
    Gather(std::vector<int> positions, int) : m_positions(std::move(positions)) {}

    void take(const Pixel* from, Pixel* to) const
    {
        for (const int position : m_positions) {
            *to++ = from[position];
        }
    }

private:
    std::vector<int> m_positions;
};

template <>
class Gather<quint8> : public ByteGather
{
public:
    using ByteGather::ByteGather;
};

template <class Pixel>
void resizeRows(const Raster<const Pixel>& from, const Raster<Pixel>& to)
{
    const Gather<Pixel> columns(nearestPositions(from.width, to.width), from.width);
    const std::vector<int> rows = nearestPositions(from.height, to.height);
    for (int y = 0; y < to.height; ++y) {
        const int row = rows[std::size_t(y)];
        if (y > 0 && row == rows[std::size_t(y - 1)]) {
            std::copy_n(to.row(y - 1), to.width, to.row(y));
        } else {
            columns.take(from.row(row), to.row(y));
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

/// The indexed image resized and matched to `colors` as closely as possible.
QImage snapped(const QImage& indexed, const QImage& colors)
{
    QImage result = colors.isNull() ? QImage() : resizeNearest(indexed, colors.size());
    if (!result.isNull()) {
        snapToColors(result, colors);
    }
    return result;
}

/// Enlarges repeatedly until one side reaches the size, as far as the sides stay possible: by 2 or
/// 3 if that suffices, otherwise by `most` each time.
template <class Once>
QImage enlarged(QImage image, const QSize& size, int most, Once once)
{
    const auto reached = [&size](const QSize& now) {
        return now.width() >= size.width() || now.height() >= size.height();
    };
    while (!image.isNull() && !reached(image.size())) {
        const int factor = reached(image.size() * 2) ? 2 : reached(image.size() * 3) ? 3 : most;
        if (!isPossibleSize(image.size() * factor)) {
            break;
        }
        image = once(image, factor);
    }
    return image;
}

/// Resizes a true-colour image by mixing colours.
QImage resizeMixing(const QImage& image, const QSize& size, ImageResizeFilter filter)
{
    const QImage work = comparableImage(image);
    const QImage large =
        filter == ImageResizeFilter::Hq ? enlarged(work, size, 4, scaleHqOnce) : work;
    return large.size() == size ? large : resizeBilinear(large, size);
}

bool mixesColors(ImageResizeFilter filter)
{
    return filter == ImageResizeFilter::Bilinear || filter == ImageResizeFilter::Hq;
}

}  // namespace

QImage resizeImage(const QImage& image, const QSize& size, ImageResizeFilter filter)
{
    const QImage work = workingImage(image);
    if (work.isNull() || !isPossibleSize(size)) {
        return {};
    }
    if (work.size() == size) {
        return work;
    }
    if (filter == ImageResizeFilter::Epx) {
        return resizeNearest(enlarged(work, size, 2, scaleEpxOnce), size);
    }
    if (!mixesColors(filter) || (isIndexed(work) && work.colorCount() == 0)) {
        return resizeNearest(work, size);
    }
    if (isIndexed(work)) {
        return snapped(work, resizeMixing(colorsOf(work), size, filter));
    }
    return resizeMixing(work, size, filter);
}

QImage scaleEpx(const QImage& image, int factor)
{
    if (!isPossibleSize(image.size()) || factor < 2 || factor > 4) {
        return {};
    }
    const QImage work = workingImage(image);
    return factor == 4 ? scaleEpxOnce(scaleEpxOnce(work, 2), 2) : scaleEpxOnce(work, factor);
}

QImage scaleHq(const QImage& image, int factor)
{
    if (!isPossibleSize(image.size()) || factor < 2 || factor > 4) {
        return {};
    }
    const QImage work = comparableImage(workingImage(image));
    return isIndexed(work) ? snapped(work, scaleHqOnce(colorsOf(work), factor))
                           : scaleHqOnce(work, factor);
}

}  // namespace Zorv
