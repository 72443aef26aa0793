#pragma once

#include <QImage>
#include <QRandomGenerator>

/// Small random pictures for the image operations; the same ones in each run.
namespace Pictures {

/// Up to 16 colours of which some are equal, one is transparent and one is half so.
inline QVector<QRgb> colors()
{
    QVector<QRgb> table = {qRgba(200, 10, 10, 0), qRgb(20, 20, 20), qRgb(20, 20, 20),
                           qRgba(90, 200, 40, 128)};
    QRandomGenerator random(7);
    while (table.size() < 16) {
        table << (random.generate() | 0xFF000000U);
    }
    return table;
}

inline QImage indexed(const QSize& size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(colors());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            // Pixels are often like one beside them, so that there are shapes.
            const bool left = x > 0 && random.bounded(3) != 0;
            const bool above = y > 0 && random.bounded(3) != 0;
            image.setPixel(x, y,
                           left    ? image.pixelIndex(x - 1, y)
                           : above ? image.pixelIndex(x, y - 1)
                                   : random.bounded(16));
        }
    }
    return image;
}

/// A picture in one of the forms that the operations take: indexed, with alpha or opaque.
inline QImage inForm(QImage::Format format, const QSize& size, quint32 seed)
{
    const QImage image = indexed(size, seed);
    return format == QImage::Format_Indexed8 ? image : image.convertToFormat(format);
}

const QImage::Format Forms[] = {QImage::Format_Indexed8, QImage::Format_ARGB32,
                                QImage::Format_RGB32};

}  // namespace Pictures
