#include "media/plainimages_p.h"

#include "media/bmppixels_p.h"
#include "media/pngchunks_p.h"

#include <QBuffer>
#include <QImageReader>

namespace Zorv {

QImage readPlainPNG(QIODevice* device)
{
    QImage image;
    return isWholePNG(device) && image.load(device, "PNG") ? image : QImage();
}

QImage readPlainBMP(QIODevice* device)
{
    const BMPPixels pixels(device);
    const qint64 missing = pixels.missing();
    if (missing > pixels.rowPadding()) {
        return {};
    }
    QImage image = pixels.ground();
    if (missing == 0) {
        return QImageReader(device, "BMP").read(&image) ? image : QImage();
    }
    // Only the padding of the last row is missing; all its pixels are there.
    QByteArray padded = device->readAll() + QByteArray(int(missing), 0);
    QBuffer buffer(&padded);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer, "BMP").read(&image) ? image : QImage();
}

QImage inLibraryForm(const QImage& image)
{
    switch (image.format()) {
    case QImage::Format_Invalid:
    case QImage::Format_Indexed8:
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
        return image;
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Grayscale8:
    case QImage::Format_Alpha8:
        return image.convertToFormat(QImage::Format_Indexed8);
    default:
        return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                             : QImage::Format_RGB32);
    }
}

}  // namespace Zorv
