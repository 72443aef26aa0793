#include "media/tools/gifpixels_p.h"

#include <algorithm>

namespace Zorv {

namespace {

const int LeastAlpha = 128;

/// Assigns indices to colours in order of appearance, with an open-addressing hash table.
class Indexer
{
public:
    Indexer() { m_slots.fill(-1); }

    /// The index of a colour; -1 for a new colour after the 256th.
    int index(QRgb color)
    {
        size_t at = (color * 2654435761u) >> 22;
        while (m_slots[at] >= 0 && m_colors[m_slots[at]] != color) {
            at = (at + 1) % m_slots.size();
        }
        if (m_slots[at] < 0 && m_colors.size() < 256) {
            m_slots[at] = qint16(m_colors.size());
            m_colors.append(color);
        }
        return m_slots[at];
    }

    const QVector<QRgb>& colors() const { return m_colors; }

private:
    QVector<QRgb> m_colors;
    std::array<qint16, 1024> m_slots;
};

}  // namespace

QRgb gifColor(QRgb color)
{
    return qAlpha(color) < LeastAlpha ? 0 : color | 0xff000000;
}

QImage gifTrueColor(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(result.scanLine(y));
        std::transform(line, line + result.width(), line, gifColor);
    }
    return result;
}

QImage gifIndexed(const QImage& image)
{
    if (image.format() == QImage::Format_Indexed8) {
        return image;
    }
    const QImage source = gifTrueColor(image);
    QImage result(source.size(), QImage::Format_Indexed8);
    if (source.isNull() || result.isNull()) {
        return {};
    }
    const int width = source.width();
    Indexer indexer;
    QRgb last = source.pixel(0, 0);
    int index = indexer.index(last);
    for (int y = 0; y < source.height(); ++y) {
        const auto* const from = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        uchar* const to = result.scanLine(y);
        for (int x = 0; x < width; ++x) {
            if (from[x] != last) {
                last = from[x];
                index = indexer.index(last);
                if (index < 0) {
                    return {};
                }
            }
            to[x] = uchar(index);
        }
    }
    result.setColorTable(indexer.colors());
    return result;
}

GIFIndexSet gifIndices(const QImage& indexed)
{
    GIFIndexSet used = {};
    const int width = indexed.width();
    for (int y = 0; y < indexed.height(); ++y) {
        const uchar* const line = indexed.constScanLine(y);
        for (int x = 0; x < width; ++x) {
            used[line[x]] = true;
        }
    }
    return used;
}

}  // namespace Zorv
