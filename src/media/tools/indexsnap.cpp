#include "media/tools/indexsnap_p.h"

#include "media/tools/nearestcolors_p.h"
#include "media/tools/raster_p.h"

#include <QRgb>

#include <algorithm>
#include <array>
#include <vector>

namespace Zorv {

namespace {

using ColorTable = std::array<QRgb, 256>;

/// The colours of all indices; 0 for invisible ones.
ColorTable colorTableOf(const QImage& indexed)
{
    ColorTable colors = {};
    for (int i = 0; i < std::min(indexed.colorCount(), 256); ++i) {
        const QRgb color = indexed.color(i);
        colors[std::size_t(i)] = qAlpha(color) != 0 ? color : 0;
    }
    return colors;
}

/// Finds the entry of a colour table for a colour.
class NearestEntry
{
public:
    explicit NearestEntry(const QVector<QRgb>& table) : m_nearest(visible(table)) {}

    quint8 operator()(QRgb color)
    {
        const bool clear = qAlpha(color) < 128 || m_indices.empty();
        return clear && m_transparent >= 0 ? quint8(m_transparent)
                                           : m_indices[m_nearest.find(color)];
    }

private:
    QVector<RGBA> visible(const QVector<QRgb>& table)
    {
        QVector<RGBA> colors;
        for (int i = 0; i < std::min(table.size(), 256); ++i) {
            const QRgb color = table[i];
            if (qAlpha(color) != 0) {
                m_indices.push_back(quint8(i));
                colors.append({quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)),
                               quint8(qAlpha(color))});
            } else if (m_transparent < 0) {
                m_transparent = i;
            }
        }
        return colors;
    }

    int m_transparent = -1;
    std::vector<quint8> m_indices;
    NearestColors m_nearest;
};

}  // namespace

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
    NearestEntry nearest(indexed.colorTable());
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
