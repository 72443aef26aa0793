#include "media/tools/colorblindness.h"

#include "media/tools/colorblindness_p.h"
#include "media/tools/colorspaces.h"

#include <algorithm>

namespace Zorv {

namespace {

// In the order of the enumeration.
constexpr SightMatrix Matrices[] = {
    {{0.152286, 1.052583, -0.204868},
     {0.114503, 0.786281, 0.099216},
     {-0.003882, -0.048116, 1.051998}},
    {{0.367322, 0.860646, -0.227968},
     {0.280085, 0.672501, 0.047413},
     {-0.011820, 0.042940, 0.968881}},
    {{1.255528, -0.076749, -0.178779},
     {-0.078411, 0.930809, 0.147602},
     {0.004733, 0.691367, 0.303900}},
};

}  // namespace

const SightMatrix& sightMatrix(ColorBlindness blindness)
{
    return Matrices[int(blindness)];
}

RGBA seenWith(ColorBlindness blindness, RGBA color)
{
    const SightMatrix& matrix = sightMatrix(blindness);
    const double light[] = {linearLight(color.r), linearLight(color.g), linearLight(color.b)};
    const auto channel = [&](int row) {
        const double(&parts)[3] = matrix[row];
        return encodedLight(parts[0] * light[0] + parts[1] * light[1] + parts[2] * light[2]);
    };
    return {channel(0), channel(1), channel(2), color.a};
}

RGBA seenWith(const ColorSight& sight, RGBA color)
{
    return sight ? seenWith(*sight, color) : color;
}

QImage seenWith(const ColorSight& sight, const QImage& image)
{
    if (!sight) {
        return image;
    }
    QImage seen = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < seen.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(seen.scanLine(y));
        std::transform(row, row + seen.width(), row, [&](QRgb pixel) {
            const RGBA color = seenWith(*sight, {quint8(qRed(pixel)), quint8(qGreen(pixel)),
                                                 quint8(qBlue(pixel)), quint8(qAlpha(pixel))});
            return qRgba(color.r, color.g, color.b, color.a);
        });
    }
    return seen;
}

}  // namespace Zorv
