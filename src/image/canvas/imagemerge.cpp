#include "image/canvas/imagemerge_p.h"

#include "image/canvas/imageforms_p.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagepalette.h"

#include <QPainter>

#include <algorithm>
#include <cstring>

// In an indexed canvas the top layer decides most pixels: opaque parts of its rows are copied, and
// only the other pixels are looked up layer by layer. Most palettes have just one entry that is not
// opaque, so the end of an opaque part is found by searching for one byte.

namespace Zorv {

namespace {

const int Opaque = 255;

/// The index of a pixel in which nothing is visible.
quint8 emptyEntry(const PaletteColors& colors)
{
    return quint8(std::max(colors.transparent(), 0));
}

class IndexedMerge
{
public:
    IndexedMerge(const std::vector<QImage>& layers, const QRect& part, const ImagePalette& palette)
        : m_layers(layers), m_part(part), m_colors(palette), m_empty(emptyEntry(m_colors)),
          m_rows(layers.size())
    {
        for (int i = 0; i < 256; ++i) {
            m_notOpaque[std::size_t(i)] = qAlpha(m_colors[quint8(i)]) != Opaque;
            if (m_notOpaque[std::size_t(i)]) {
                ++m_notOpaqueCount;
                m_lastNotOpaque = i;
            }
        }
    }

    void mergeRow(int y, quint8* to)
    {
        for (std::size_t i = 0; i < m_layers.size(); ++i) {
            m_rows[i] = y < m_layers[i].height() ? m_layers[i].constScanLine(y) : nullptr;
        }
        const int left = m_part.left();
        int x = left;
        const int topEnd = m_rows.front() ? m_layers.front().width() : 0;
        const int end = left + m_part.width();
        while (x < end) {
            const int run = opaqueEnd(x, std::min(end, topEnd));
            if (run > x) {
                std::memcpy(to + (x - left), m_rows.front() + x, std::size_t(run - x));
                x = run;
            } else {
                to[x - left] = mergePixel(x);
                ++x;
            }
        }
    }

private:
    /// The end of the opaque pixels of the top layer, starting at `x`.
    int opaqueEnd(int x, int end) const
    {
        if (x >= end) {
            return x;
        }
        const quint8* row = m_rows.front();
        if (m_notOpaqueCount == 0) {
            return end;
        }
        if (m_notOpaqueCount == 1) {
            const void* found = std::memchr(row + x, m_lastNotOpaque, std::size_t(end - x));
            return found ? int(static_cast<const quint8*>(found) - row) : end;
        }
        const auto stops = [this, row](int at) { return m_notOpaque[row[at]]; };
        while (x + 4 <= end && !(stops(x) | stops(x + 1) | stops(x + 2) | stops(x + 3))) {
            x += 4;
        }
        while (x < end && !stops(x)) {
            ++x;
        }
        return x;
    }

    quint8 mergePixel(int x)
    {
        m_collected.clear();
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (!m_rows[i] || x >= m_layers[i].width()) {
                continue;
            }
            const quint8 index = m_rows[i][x];
            const int alpha = qAlpha(m_colors[index]);
            if (alpha > 0) {
                m_collected.push_back(index);
            }
            if (alpha == Opaque) {
                break;
            }
        }
        if (m_collected.empty()) {
            return m_empty;
        }
        return m_collected.size() == 1 ? m_collected.front() : m_colors.nearest(mixed());
    }

    /// Averages from the bottom up: each colour is mixed half and half with the one above it.
    QRgb mixed() const
    {
        const auto half = [](int low, int high) { return low + ((high - low) >> 1); };
        QRgb color = m_colors[m_collected.back()];
        for (auto above = m_collected.rbegin() + 1; above != m_collected.rend(); ++above) {
            const QRgb upper = m_colors[*above];
            color = qRgba(half(qRed(color), qRed(upper)), half(qGreen(color), qGreen(upper)),
                          half(qBlue(color), qBlue(upper)), half(qAlpha(color), qAlpha(upper)));
        }
        return color;
    }

    const std::vector<QImage>& m_layers;
    QRect m_part;
    PaletteColors m_colors;
    std::array<quint8, 256> m_notOpaque;
    int m_notOpaqueCount = 0;
    int m_lastNotOpaque = -1;
    quint8 m_empty;
    std::vector<const quint8*> m_rows;  ///< null for a layer without that row
    std::vector<quint8> m_collected;    ///< the visible entries at a pixel, the top one first
};

/// A part of an image, filled up where the image is smaller.
QImage copyOf(const QImage& image, const QRect& part, quint32 fill)
{
    return placed(image, part.size(), -part.topLeft(), fill);
}

}  // namespace

QImage mergeIndexed(const std::vector<QImage>& layers, const QRect& part,
                    const ImagePalette& palette)
{
    QImage result;
    const quint8 empty = emptyEntry(PaletteColors(palette));
    if (layers.size() == 1) {
        result = copyOf(layers.front(), part, empty);
    } else {
        result = QImage(part.size(), QImage::Format_Indexed8);
    }
    if (result.isNull()) {
        return result;
    }
    result.setColorTable(palette.toRgbPal());
    if (layers.empty()) {
        result.fill(empty);
    } else if (layers.size() > 1) {
        IndexedMerge merge(layers, part, palette);
        for (int y = 0; y < part.height(); ++y) {
            merge.mergeRow(part.top() + y, result.scanLine(y));
        }
    }
    return result;
}

QImage mergeColors(const std::vector<const ImageLayer*>& layers, const QRect& part)
{
    // Copied, not drawn: drawing uses premultiplied colours and loses bits of half transparent
    // ones.
    if (layers.size() == 1) {
        const ImageLayer& layer = *layers.front();
        if (layer.blendMode() == QPainter::CompositionMode_SourceOver && layer.opacity() == 1.0 &&
            layer.image().format() == QImage::Format_ARGB32) {
            return copyOf(layer.image(), part, 0);
        }
    }
    QImage result = emptyImage(part.size(), QImage::Format_ARGB32);
    if (!result.isNull()) {
        QPainter painter(&result);
        painter.translate(-part.topLeft());
        std::for_each(layers.rbegin(), layers.rend(),
                      [&painter](const ImageLayer* layer) { layer->render(painter); });
    }
    return result;
}

}  // namespace Zorv
