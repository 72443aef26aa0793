#include "media/colorconversion.h"

#include <algorithm>

namespace Zorv {

QImage convert8To32(QImage& image)
{
    if (image.format() != QImage::Format_Indexed8) {
        return image.convertToFormat(QImage::Format_ARGB32);
    }
    QVector<QRgb> colors = image.colorTable();
    colors.resize(256);
    const QRgb* const table = colors.constData();

    QImage result(image.size(), QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        const uchar* const from = image.constScanLine(y);
        QRgb* const to = reinterpret_cast<QRgb*>(result.scanLine(y));
        std::transform(from, from + image.width(), to,
                       [table](uchar index) { return table[index]; });
    }
    return result;
}

static unsigned distance(BGRA color, RGBA entry)
{
    unsigned result = 0;
    if (color.a != 0) {
        const int red = color.r - entry.r;
        const int green = color.g - entry.g;
        const int blue = color.b - entry.b;
        result = unsigned(red * red + green * green + blue * blue);
        if (color.a < 255) {
            result = result * color.a / 255;
        }
    }
    const int alpha = color.a - entry.a;
    return result + unsigned(alpha * alpha);
}

unsigned char nearestColor(BGRA color, const RGBA* palette)
{
    unsigned best = distance(color, palette[0]);
    int index = 0;
    for (int i = 1; i < 256 && best > 0; ++i) {
        const unsigned candidate = distance(color, palette[i]);
        if (candidate < best) {
            best = candidate;
            index = i;
        }
    }
    return uchar(index);
}

void RGBVectorToRgbVector(const QVector<RGB>& from, QVector<unsigned int>& to)
{
    to.resize(from.size());
    std::transform(from.begin(), from.end(), to.begin(),
                   [](RGB color) { return qRgb(color.r, color.g, color.b); });
}

void RGBPaletteToRgbVector(const RGBA* from, QVector<unsigned int>& to)
{
    to.resize(256);
    std::transform(from, from + 256, to.begin(),
                   [](RGBA color) { return qRgba(color.r, color.g, color.b, color.a); });
}

}  // namespace Zorv
