#include "media/tools/cropimage.h"

#include "media/tools/raster_p.h"

#include <algorithm>
#include <array>

namespace Zorv {

namespace {

/// The rectangle around all pixels for which `shows` is true.
template <class Pixel, class Shows>
QRect boundingRect(const Raster<const Pixel>& pixels, Shows shows)
{
    int left = pixels.width;
    int right = -1;
    int top = pixels.height;
    int bottom = -1;
    for (int y = 0; y < pixels.height; ++y) {
        const Pixel* row = pixels.row(y);
        const Pixel* end = row + pixels.width;
        const Pixel* first = std::find_if(row, end, shows);
        if (first == end) {
            continue;
        }
        top = std::min(top, y);
        bottom = y;
        left = std::min(left, int(first - row));
        // Columns already inside the rectangle are not checked again.
        const Pixel* last = end - 1;
        while (last - row > right && !shows(*last)) {
            --last;
        }
        right = std::max(right, int(last - row));
    }
    return {QPoint(left, top), QPoint(right, bottom)};
}

/// The visible indices. An index beyond the table has no colour, but is not background either.
std::array<bool, 256> visibleIndices(const QImage& image, int background)
{
    std::array<bool, 256> visible;
    visible.fill(true);
    for (int i = 0; i < std::min(image.colorCount(), 256); ++i) {
        visible[std::size_t(i)] = qAlpha(image.color(i)) != 0;
    }
    if (background >= 0 && background < 256) {
        visible[std::size_t(background)] = false;
    }
    return visible;
}

}  // namespace

QRect cropImageRect(const QImage& image, int background)
{
    const QImage work = workingImage(image);
    QRect rect = work.rect();
    if (work.isNull()) {
        return {};
    }
    if (isIndexed(work)) {
        const std::array<bool, 256> visible = visibleIndices(work, background);
        rect = boundingRect(Raster<const quint8>(work),
                            [&visible](quint8 index) { return visible[index]; });
    } else if (work.hasAlphaChannel()) {
        rect = boundingRect(Raster<const quint32>(work),
                            [](quint32 pixel) { return qAlpha(pixel) != 0; });
    }
    return rect.isValid() ? rect : QRect();
}

void cropImage(QImage& image, QPoint* offset, int background)
{
    const QRect rect = cropImageRect(image, background);
    if (offset) {
        *offset = rect.topLeft();
    }
    if (!image.isNull() && rect != image.rect()) {
        // Without visible pixels the first pixel remains; it is invisible, too.
        image = image.copy(rect.isEmpty() ? QRect(0, 0, 1, 1) : rect);
    }
}

}  // namespace Zorv
