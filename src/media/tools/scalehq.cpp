#include "media/tools/scalehq_p.h"

#include "media/tools/hqborders_p.h"
#include "media/tools/hqshapes_p.h"
#include "media/tools/raster_p.h"
#include "media/tools/widepixel_p.h"

#include <QRgb>

#include <algorithm>

namespace Zorv {

namespace {

/// A row with its borders to the next one.
struct Line
{
    explicit Line(int width) : row(width), below(width) {}

    HqRow row;
    HqBorders below;
};

WidePixel mixed(const HqMix& mix, WidePixel own, WidePixel corner, WidePixel vertical,
                WidePixel horizontal)
{
    return (own * mix.own + corner * mix.corner + vertical * mix.vertical +
            horizontal * mix.horizontal) >>
               4 &
           WideMask;
}

/// Draws the pixels of one row, `Factor` by `Factor` for each. Colours are multiplied by alpha.
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

    void paint(const HqRow& above, const HqRow& own, const HqRow& below, const HqQuarters& quarters,
               std::size_t i, quint32* const* to) const
    {
        const WidePixel E = widened(own.pixels[i + 1]);
        const WidePixel B = widened(above.pixels[i + 1]);
        const WidePixel D = widened(own.pixels[i]);
        const WidePixel F = widened(own.pixels[i + 2]);
        const WidePixel H = widened(below.pixels[i + 1]);
        const std::size_t x = i * Factor;
        quarter(quarters[0], to, x, false, false, E, widened(above.pixels[i]), B, D);
        quarter(quarters[1], to, x, true, false, E, widened(above.pixels[i + 2]), B, F);
        quarter(quarters[2], to, x, false, true, E, widened(below.pixels[i]), H, D);
        quarter(quarters[3], to, x, true, true, E, widened(below.pixels[i + 2]), H, F);
        if (Factor == 3) {
            to[0][x + 1] = edge(quarters[0], quarters[1], E, B);
            to[1][x] = edge(hqTransposed(quarters[0]), hqTransposed(quarters[2]), E, D);
            to[1][x + 1] = own.pixels[i + 1];
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

/// Divides by alpha what was made of a row. Pixels that only repeat theirs are exact.
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
void scaleRows(const Raster<const quint32>& from, const Raster<quint32>& to)
{
    const Painter<Factor> painter;
    const std::array<HqQuarters, HqKeyCount>& quarters = hqQuarters();
    std::array<Line, 3> lines = {Line(from.width), Line(from.width), Line(from.width)};
    std::vector<quint32> padded(std::size_t(from.width) + 2);
    const auto line = [&lines](int y) -> Line& { return lines[std::size_t(y + 3) % 3]; };
    const auto read = [&](int y) {
        const quint32* row = from.row(std::clamp(y, 0, from.height - 1));
        std::transform(row, row + from.width, padded.begin() + 1,
                       [](quint32 pixel) { return qPremultiply(pixel); });
        padded.front() = padded[1];
        padded.back() = padded[padded.size() - 2];
        line(y).row.read(padded.data());
    };
    read(-1);
    read(0);
    line(-1).below.compare(line(-1).row, line(0).row);
    for (int y = 0; y < from.height; ++y) {
        read(y + 1);
        Line& own = line(y);
        const Line& above = line(y - 1);
        own.below.compare(own.row, line(y + 1).row);
        quint32* rows[Factor];
        for (int k = 0; k < Factor; ++k) {
            rows[k] = to.row(Factor * y + k);
        }
        for (int x = 0; x < from.width; ++x) {
            if (HqBorders::isFlat(above.below, own.below, x)) {
                for (quint32* row : rows) {
                    std::fill_n(row + Factor * x, Factor, own.row.pixels[std::size_t(x) + 1]);
                }
            } else {
                const int key = HqBorders::key(above.below, own.below, x);
                painter.paint(above.row, own.row, line(y + 1).row, quarters[std::size_t(key)],
                              std::size_t(x), rows);
            }
        }
        for (quint32* row : rows) {
            unpremultiply<Factor>(from.row(y), own.row, row, from.width);
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
