#include "media/tools/raster_p.h"

#include <algorithm>

namespace Zorv {

namespace {

bool isComparable(const QImage& image)
{
    const Raster<const quint32> pixels(image);
    const bool opaque = image.format() == QImage::Format_RGB32;
    for (int y = 0; y < pixels.height; ++y) {
        const quint32* row = pixels.row(y);
        quint32 faults = 0;
        for (int x = 0; x < pixels.width; ++x) {
            faults |= row[x] ^ (opaque ? comparableOpaque(row[x]) : comparableClear(row[x]));
        }
        if (faults != 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

QImage workingImage(const QImage& image)
{
    if (image.isNull() || isIndexed(image)) {
        return image;
    }
    if (image.depth() == 1) {
        return image.convertToFormat(QImage::Format_Indexed8);
    }
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                         : QImage::Format_RGB32);
}

QImage comparableImage(const QImage& image)
{
    if (image.isNull() || isIndexed(image) || isComparable(image)) {
        return image;
    }
    QImage result = image;
    const bool opaque = image.format() == QImage::Format_RGB32;
    const Raster<quint32> pixels(result);
    for (int y = 0; y < pixels.height; ++y) {
        quint32* row = pixels.row(y);
        std::transform(row, row + pixels.width, row, opaque ? comparableOpaque : comparableClear);
    }
    return result;
}

QImage imageLike(const QImage& model, const QSize& size)
{
    if (size.width() < 1 || size.height() < 1 || size.width() > MaxImageSide ||
        size.height() > MaxImageSide) {
        return {};
    }
    QImage result(size, model.format());
    if (!result.isNull()) {
        result.setColorTable(model.colorTable());
        result.setDotsPerMeterX(model.dotsPerMeterX());
        result.setDotsPerMeterY(model.dotsPerMeterY());
    }
    return result;
}

}  // namespace Zorv
