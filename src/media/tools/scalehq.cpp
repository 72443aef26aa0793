#include "media/tools/scalehq_p.h"

#include "media/tools/hqborders_p.h"
#include "media/tools/hqshapes_p.h"
#include "media/tools/raster_p.h"
#include "media/tools/widepixel_p.h"

#include <QRgb>

#include <algorithm>
#include <array>
#include <vector>

namespace Zorv {

namespace {

/// Iterates over the rows of an image and keeps three of them, with the borders between them.
class HqRows
{
public:
    explicit HqRows(const Raster<const quint32>& source)
        : m_source(source), m_padded(std::size_t(source.width) + 2)
    {
        read(-1);
        read(0);
        compare(-1);
        read(1);
        compare(0);
    }

    void next()
    {
        ++m_y;
        read(m_y + 1);
        compare(m_y);
    }

    int y() const { return m_y; }
    const HqRow& row(int offset) const { return m_rows[slot(m_y + offset)]; }

    /// The borders to the rows above and below.
    const HqBorders& above() const { return m_borders[slot(m_y - 1)]; }
    const HqBorders& below() const { return m_borders[slot(m_y)]; }

private:
    static std::size_t slot(int y) { return std::size_t(y + 3) % 3; }

    void read(int y)
    {
        const quint32* row = m_source.row(std::clamp(y, 0, m_source.height - 1));
        std::transform(row, row + m_source.width, m_padded.begin() + 1,
                       [](quint32 pixel) { return qPremultiply(pixel); });
        m_padded.front() = m_padded[1];
        m_padded.back() = m_padded[m_padded.size() - 2];
        m_rows[slot(y)].read(m_padded.data());
    }
    void compare(int y) { m_borders[slot(y)].compare(m_rows[slot(y)], m_rows[slot(y + 1)]); }

    template <class Part>
    std::array<Part, 3> three() const
    {
        return {Part(m_source.width), Part(m_source.width), Part(m_source.width)};
    }

    Raster<const quint32> m_source;
    std::vector<quint32> m_padded;
    std::array<HqRow, 3> m_rows = three<HqRow>();
    std::array<HqBorders, 3> m_borders = three<HqBorders>();
    int m_y = 0;
};

WidePixel mixed(const HqMix& mix, WidePixel own, WidePixel corner, WidePixel vertical,
                WidePixel horizontal)
{
    return (own * mix.own + corner * mix.corner + vertical * mix.vertical +
            horizontal * mix.horizontal) >>
               4 &
           WideMask;
}

// For opaque pixels this is the published method. Alpha is compared and mixed as a fourth channel,
// and the others are premultiplied by it. So the invisible colour of transparent pixels neither
// creates borders nor shows.

/// Draws `Factor` by `Factor` pixels for each pixel of a row. Colours are premultiplied.
template <int Factor>
class Painter
{
public:
    Painter()
    {
        for (int left = 0; left < Shapes; ++left) {
            for (int right = 0; right < Shapes; ++right) {
                m_edges[left][right] = quint8(hqEdgePart(HqShape(left), HqShape(right)));
            }
        }
    }

    void paint(const HqRows& rows, const HqQuarters& quarters, std::size_t i,
               quint32* const* to) const
    {
        const std::vector<quint32>& above = rows.row(-1).pixels;
        const std::vector<quint32>& own = rows.row(0).pixels;
        const std::vector<quint32>& below = rows.row(1).pixels;
        const WidePixel E = widened(own[i + 1]);
        const WidePixel B = widened(above[i + 1]);
        const WidePixel D = widened(own[i]);
        const WidePixel F = widened(own[i + 2]);
        const WidePixel H = widened(below[i + 1]);
        const std::size_t x = i * Factor;
        quarter(quarters[0], to, x, false, false, E, widened(above[i]), B, D);
        quarter(quarters[1], to, x, true, false, E, widened(above[i + 2]), B, F);
        quarter(quarters[2], to, x, false, true, E, widened(below[i]), H, D);
        quarter(quarters[3], to, x, true, true, E, widened(below[i + 2]), H, F);
        if (Factor == 3) {
            to[0][x + 1] = edge(quarters[0], quarters[1], E, B);
            to[1][x] = edge(hqTransposed(quarters[0]), hqTransposed(quarters[2]), E, D);
            to[1][x + 1] = own[i + 1];
            to[1][x + 2] = edge(hqTransposed(quarters[1]), hqTransposed(quarters[3]), E, F);
            to[2][x + 1] = edge(quarters[2], quarters[3], E, H);
        }
    }

private:
    static constexpr int Shapes = int(HqShape::Count);

    void quarter(HqShape shape, quint32* const* to, std::size_t x, bool right, bool down,
                 WidePixel own, WidePixel corner, WidePixel vertical, WidePixel horizontal) const
    {
        const HqQuarterMixes& mixes = m_mixes[std::size_t(shape)];
        const int side = Factor == 4 ? 2 : 1;
        for (int k = 0; k < side * side; ++k) {
            const int column = right ? Factor - 1 - k % side : k % side;
            const int row = down ? Factor - 1 - k / side : k / side;
            to[row][x + std::size_t(column)] =
                narrowed(mixed(mixes[std::size_t(k)], own, corner, vertical, horizontal));
        }
    }

    quint32 edge(HqShape left, HqShape right, WidePixel own, WidePixel other) const
    {
        const unsigned part = m_edges[int(left)][int(right)];
        return narrowed((own * (16 - part) + other * part) >> 4 & WideMask);
    }

    std::array<HqQuarterMixes, Shapes> m_mixes = hqMixes(Factor);
    quint8 m_edges[Shapes][Shapes];
};

/// Converts a finished row back from premultiplied colours. A pixel that merely repeats its source
/// is copied from there and stays exact.
template <int Factor>
void unpremultiply(const quint32* own, const HqRow& premultiplied, quint32* row, int width)
{
    for (int i = 0; i < Factor * width; ++i) {
        if (qAlpha(row[i]) != 255) {
            const int x = i / Factor;
            row[i] = row[i] == premultiplied.pixels[std::size_t(x) + 1] ? own[x]
                                                                        : qUnpremultiply(row[i]);
        }
    }
}

template <int Factor>
void scaleRow(const HqRows& rows, const Painter<Factor>& painter, quint32* const (&to)[Factor])
{
    const std::array<HqQuarters, HqKeyCount>& quarters = hqQuarters();
    const std::vector<quint32>& own = rows.row(0).pixels;
    for (std::size_t x = 0; x + 2 < own.size(); ++x) {
        if (HqBorders::isFlat(rows.above(), rows.below(), x)) {
            for (quint32* row : to) {
                std::fill_n(row + Factor * x, Factor, own[x + 1]);
            }
        } else {
            const int key = HqBorders::key(rows.above(), rows.below(), x);
            painter.paint(rows, quarters[std::size_t(key)], x, to);
        }
    }
}

template <int Factor>
void scaleRows(const Raster<const quint32>& from, const Raster<quint32>& to)
{
    const Painter<Factor> painter;
    for (HqRows rows(from); rows.y() < from.height; rows.next()) {
        quint32* made[Factor];
        for (int k = 0; k < Factor; ++k) {
            made[k] = to.row(Factor * rows.y() + k);
        }
        scaleRow<Factor>(rows, painter, made);
        for (quint32* row : made) {
            unpremultiply<Factor>(from.row(rows.y()), rows.row(0), row, from.width);
        }
    }
}

}  // namespace

QImage scaleHqOnce(const QImage& image, int factor)
{
    QImage result = imageLike(image, image.size() * factor);
    if (result.isNull()) {
        return result;
    }
    const Raster<const quint32> from(image);
    const Raster<quint32> to(result);
    switch (factor) {
    case 2:
        scaleRows<2>(from, to);
        break;
    case 3:
        scaleRows<3>(from, to);
        break;
    default:
        scaleRows<4>(from, to);
    }
    return result;
}

}  // namespace Zorv
