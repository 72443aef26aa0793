#include "image/canvas/imagepalette.h"

namespace Zorv {

ImagePalette::ImagePalette(QObject* parent) : QObject(parent) {}

ImagePalette::~ImagePalette() = default;

QVector<QRgb> ImagePalette::toRgbPal() const
{
    RGBA colors[256];
    toRGBPal(colors);
    QVector<QRgb> table;
    table.reserve(256);
    for (const RGBA color : colors) {
        table.append(qRgba(color.r, color.g, color.b, color.a));
    }
    return table;
}

}  // namespace Zorv
