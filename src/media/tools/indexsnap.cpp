#include "media/tools/indexsnap_p.h"

#include "media/tools/raster_p.h"

#include <algorithm>
#include <array>
#include <limits>

namespace Zorv {

namespace {

using ColorTable = std::array<QRgb, 256>;

/// The colours of all indices, 0 for those that show nothing.
ColorTable colorTableOf(const QImage& indexed)
{
    ColorTable colors = {};
    for (int i = 0; i < std::min(indexed.colorCount(), 256); ++i) {
        const QRgb color = indexed.color(i);
        colors[std::size_t(i)] = qAlpha(color) != 0 ? color : 0;
    }
    return colors;
}

}  // namespace

NearestIndex::NearestIndex(const QVector<QRgb>& colors) : known(std::size_t(1) << KnownBits)
{
    for (int i = 0; i < colors.size(); ++i) {
        const QRgb color = colors[i];
        if (qAlpha(color) != 0) {
            entries.push_back({qRed(color), qGreen(color), qBlue(color), qAlpha(color), i});
        } else if (transparent < 0) {
            transparent = i;
        }
    }
}

int NearestIndex::search(QRgb color) const
{
    const int a = qAlpha(color);
    if (transparent >= 0 && (a < 128 || entries.empty())) {
        return transparent;
    }
    int best = 0;
    int bestDistance = std::numeric_limits<int>::max();
    for (const Entry& entry : entries) {
        const int r = qRed(color) - entry.r;
        const int g = qGreen(color) - entry.g;
        const int b = qBlue(color) - entry.b;
        const int distance = (r * r + g * g + b * b) * a / 255 + (a - entry.a) * (a - entry.a);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = entry.index;
        }
    }
    return best;
}

QImage colorsOf(const QImage& indexed)
{
    const ColorTable colors = colorTableOf(indexed);
    const auto entries = colors.begin() + std::min(indexed.colorCount(), 256);
    const bool opaque =
        std::all_of(colors.begin(), entries, [](QRgb color) { return qAlpha(color) == 255; });
    QImage result(indexed.size(), opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (result.isNull()) {
        return result;
    }
    const Raster<const quint8> from(indexed);
    const Raster<quint32> to(result);
    for (int y = 0; y < to.height; ++y) {
        const quint8* index = from.row(y);
        std::transform(index, index + from.width, to.row(y),
                       [&colors](quint8 i) { return colors[i]; });
    }
    return result;
}

void snapToColors(QImage& indexed, const QImage& colors)
{
    NearestIndex nearest(indexed.colorTable());
    const ColorTable own = colorTableOf(indexed);
    const Raster<quint8> to(indexed);
    const Raster<const quint32> from(colors);
    for (int y = 0; y < to.height; ++y) {
        quint8* index = to.row(y);
        const quint32* color = from.row(y);
        for (int x = 0; x < to.width; ++x) {
            if (own[index[x]] != color[x]) {
                index[x] = nearest(color[x]);
            }
        }
    }
}

}  // namespace Zorv
