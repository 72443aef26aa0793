// Resizing by weighted means, first vertically and then horizontally.
//
// The weights depend only on the position, so they are computed once per row and column. Colours
// are premultiplied by alpha while they are summed, so that transparent pixels contribute no
// colour.

#include "media/tools/resizebilinear_p.h"

#include "media/tools/mixture_p.h"
#include "media/tools/raster_p.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace Zorv {

namespace {

/// The source pixels of one result pixel in a row or column: `weights.size()` pixels, starting at
/// `first`.
struct Taps
{
    int first;
    std::vector<float> weights;
};

/// The weights are a triangle around each position: two source pixels wide, or two result pixels
/// when shrinking.
std::vector<Taps> tapsOf(int from, int to)
{
    std::vector<Taps> result;
    result.reserve(std::size_t(to));
    const double step = double(from) / to;
    const double reach = std::max(step, 1.0);
    for (int i = 0; i < to; ++i) {
        const double centre = (i + 0.5) * step - 0.5;
        const int first = std::max(int(std::ceil(centre - reach)), 0);
        const int last = std::min(int(std::floor(centre + reach)), from - 1);
        Taps taps = {first, {}};
        double sum = 0;
        for (int k = first; k <= last; ++k) {
            const double weight = std::max(1 - std::abs(k - centre) / reach, 0.0);
            taps.weights.push_back(float(weight));
            sum += weight;
        }
        for (float& weight : taps.weights) {
            weight = float(weight / sum);
        }
        result.push_back(std::move(taps));
    }
    return result;
}

}  // namespace

QImage resizeBilinear(const QImage& image, const QSize& size)
{
    QImage result = imageLike(image, size);
    if (result.isNull()) {
        return result;
    }
    const Raster<const quint32> from(image);
    const Raster<quint32> to(result);
    const std::vector<Taps> columns = tapsOf(from.width, to.width);
    const std::vector<Taps> rows = tapsOf(from.height, to.height);
    std::vector<Mixture> line(std::size_t(from.width));
    for (int y = 0; y < to.height; ++y) {
        const Taps& taps = rows[std::size_t(y)];
        std::fill(line.begin(), line.end(), Mixture{});
        for (std::size_t k = 0; k < taps.weights.size(); ++k) {
            const quint32* row = from.row(taps.first + int(k));
            for (std::size_t x = 0; x < line.size(); ++x) {
                add(line[x], mixtureOf(row[x]), taps.weights[k]);
            }
        }
        quint32* pixels = to.row(y);
        for (const Taps& column : columns) {
            Mixture sum = {};
            const Mixture* part = line.data() + column.first;
            for (const float weight : column.weights) {
                add(sum, *part++, weight);
            }
            *pixels++ = pixelOf(sum);
        }
    }
    return result;
}

}  // namespace Zorv
