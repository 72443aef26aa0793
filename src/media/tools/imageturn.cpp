// Rotation of an image by any angle.
//
// A row of the result is a straight line through the source, so a fixed-point start and step are
// enough for all its pixels. The part of the row that hits the source is computed beforehand by
// clipping in x and y; the rest is filled. The inner loops therefore need no bounds checks.
//
// For bilinear mixing the source gets a border of one pixel in the fill colour. All four pixels
// then always exist, and the edges blend with the fill.

#include "media/tools/imageturn_p.h"

#include "media/tools/mixture_p.h"
#include "media/tools/raster_p.h"
#include "media/tools/widepixel_p.h"

#include <QRgb>
#include <QtMath>

#include <algorithm>
#include <cmath>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Zorv {

namespace {

const double PointUnit = 4294967296.0;
const int PointBits = 32;
const quint64 OpaquePair = Q_UINT64_C(0xFF000000FF000000);

using Point = ImageTurn::Point;
using Path = ImageTurn::Path;

Point operator+(const Point& a, const Point& b)
{
    return {a.x + b.x, a.y + b.y};
}

/// The upper left one of the four pixels around a point.
const quint32* upperLeft(const Raster<const quint32>& from, const Point& at)
{
    return from.row(int(at.y >> PointBits)) + (at.x >> PointBits);
}

const quint32* below(const quint32* pixel, const Raster<const quint32>& from)
{
    return reinterpret_cast<const quint32*>(reinterpret_cast<const uchar*>(pixel) + from.stride);
}

/// Four pixels, and the weights of the right and of the lower ones, in 256ths.
struct Square
{
    Square(const Raster<const quint32>& from, const Point& at)
        : upper(upperLeft(from, at)), lower(below(upper, from)),
          right(unsigned(at.x >> (PointBits - 8) & 255)),
          down(unsigned(at.y >> (PointBits - 8) & 255))
    {
    }

    const quint32* upper;
    const quint32* lower;
    unsigned right;
    unsigned down;
};

WidePixel mixedPair(WidePixel first, WidePixel second, unsigned part)
{
    return (first * (256 - part) + second * part + WideHalf) >> 8 & WideMask;
}

quint32 mixedOpaque(const Square& square)
{
    const auto column = [&square](int i) {
        return mixedPair(widened(square.upper[i]), widened(square.lower[i]), square.down);
    };
    return narrowed(mixedPair(column(0), column(1), square.right));
}

quint32 mixedWithAlpha(const Square& square)
{
    const float right = float(square.right) / 256;
    const float down = float(square.down) / 256;
    Mixture sum = {};
    add(sum, mixtureOf(square.upper[0]), (1 - right) * (1 - down));
    add(sum, mixtureOf(square.upper[1]), right * (1 - down));
    add(sum, mixtureOf(square.lower[0]), (1 - right) * down);
    add(sum, mixtureOf(square.lower[1]), right * down);
    return pixelOf(sum);
}

quint32 mixed(const Square& square)
{
    const quint32 first = square.upper[0];
    if (first == square.upper[1] && first == square.lower[0] && first == square.lower[1]) {
        return first;
    }
    // The result is opaque only if every pixel with a weight is. Otherwise mix again with alpha.
    const quint32 result = mixedOpaque(square);
    return result >> 24 == 255 ? result : mixedWithAlpha(square);
}

#ifdef __SSE2__
/// Mixes two pixels at a time along a path. Returns the pixel after them and advances the path.
quint32* mixPairs(const Raster<const quint32>& from, quint32* pixel, quint32* end, Path& path)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i half = _mm_set1_epi16(128);
    const __m128i byte = _mm_set_epi32(0, 255, 0, 255);
    const auto pairOf = [](const quint32* first, const quint32* second) {
        return _mm_unpacklo_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(first)),
                                  _mm_loadl_epi64(reinterpret_cast<const __m128i*>(second)));
    };
    // The difference may be negative, but the sum is below 2^16, so 16-bit wrap-around still gives
    // the right result.
    const auto mix = [half](__m128i first, __m128i second, __m128i part) {
        const __m128i change = _mm_mullo_epi16(_mm_sub_epi16(second, first), part);
        const __m128i sum = _mm_add_epi16(_mm_add_epi16(_mm_slli_epi16(first, 8), half), change);
        return _mm_srli_epi16(sum, 8);
    };
    const auto parts = [byte](__m128i points) {
        const __m128i values = _mm_and_si128(_mm_srli_epi64(points, PointBits - 8), byte);
        return _mm_shufflehi_epi16(_mm_shufflelo_epi16(values, 0), 0);
    };
    __m128i columns = _mm_set_epi64x(path.start.x + path.step.x, path.start.x);
    __m128i rows = _mm_set_epi64x(path.start.y + path.step.y, path.start.y);
    const __m128i columnStep = _mm_set1_epi64x(2 * path.step.x);
    const __m128i rowStep = _mm_set1_epi64x(2 * path.step.y);
    for (; pixel + 2 <= end; pixel += 2) {
        const Point next = path.start + path.step;
        const quint32* first = upperLeft(from, path.start);
        const quint32* second = upperLeft(from, next);
        const __m128i upper = pairOf(first, second);
        const __m128i lower = pairOf(below(first, from), below(second, from));
        const __m128i down = parts(rows);
        const __m128i left =
            mix(_mm_unpacklo_epi8(upper, zero), _mm_unpacklo_epi8(lower, zero), down);
        const __m128i right =
            mix(_mm_unpackhi_epi8(upper, zero), _mm_unpackhi_epi8(lower, zero), down);
        const __m128i sum = mix(left, right, parts(columns));
        const auto both = quint64(_mm_cvtsi128_si64(_mm_packus_epi16(sum, sum)));
        if (both == 0 || (both & OpaquePair) == OpaquePair) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(pixel), _mm_packus_epi16(sum, sum));
        } else {
            pixel[0] = mixed(Square(from, path.start));
            pixel[1] = mixed(Square(from, next));
        }
        path.start = next + path.step;
        columns = _mm_add_epi64(columns, columnStep);
        rows = _mm_add_epi64(rows, rowStep);
    }
    return pixel;
}
#else
quint32* mixPairs(const Raster<const quint32>&, quint32* pixel, quint32*, Path&)
{
    return pixel;
}
#endif

/// The image with comparable pixels and a border of one pixel.
QImage bordered(const QImage& image, quint32 fill)
{
    QImage result(image.size() + QSize(2, 2), image.format());
    if (result.isNull()) {
        return result;
    }
    const Raster<const quint32> from(image);
    const Raster<quint32> to(result);
    std::fill_n(to.row(0), to.width, fill);
    std::fill_n(to.row(to.height - 1), to.width, fill);
    const bool hasAlpha = image.hasAlphaChannel();
    for (int y = 0; y < from.height; ++y) {
        quint32* row = to.row(y + 1);
        row[0] = fill;
        if (hasAlpha) {
            std::transform(from.row(y), from.row(y) + from.width, row + 1,
                           [](quint32 pixel) { return comparableClear(pixel); });
        } else {
            std::transform(from.row(y), from.row(y) + from.width, row + 1,
                           [](quint32 pixel) { return comparableOpaque(pixel); });
        }
        row[to.width - 1] = fill;
    }
    return result;
}

/// An image for the result. If the fill is not opaque, the unused byte of `Format_RGB32` becomes
/// alpha; comparable images already have 255 in it.
QImage resultOf(const QImage& image, quint32 fill, const QSize& size)
{
    QImage result = image.isNull() ? QImage() : imageLike(image, size);
    if (result.format() == QImage::Format_RGB32 && qAlpha(fill) != 255) {
        result.reinterpretAsFormat(QImage::Format_ARGB32);
    }
    return result;
}

}  // namespace

ImageTurn::ImageTurn(const QSize& size, double degrees)
    : m_size(size), m_cosine(std::cos(qDegreesToRadians(degrees))),
      m_sine(std::sin(qDegreesToRadians(degrees)))
{
    // A corner that barely touches a pixel does not need it.
    const auto side = [](double a, double b) {
        return std::max(int(std::ceil(std::abs(a) + std::abs(b) - 0.001)), 1);
    };
    m_resultSize = {side(size.width() * m_cosine, size.height() * m_sine),
                    side(size.width() * m_sine, size.height() * m_cosine)};
}

ImageTurn::Path ImageTurn::path(int row, const Source& source, const QSize& to) const
{
    const QSize& from = source.size;
    const double scale = double(from.width()) / m_size.width() * m_resultSize.width() / to.width();
    const double x = (0.5 - to.width() / 2.0) * scale;
    const double y = (row + 0.5 - to.height() / 2.0) * scale;
    const auto point = [](double px, double py) {
        return Point{qint64(std::floor(px * PointUnit)), qint64(std::floor(py * PointUnit))};
    };
    return {point(x * m_cosine + y * m_sine + from.width() / 2.0 + source.shift,
                  y * m_cosine - x * m_sine + from.height() / 2.0 + source.shift),
            point(m_cosine * scale, -m_sine * scale)};
}

/// Limits a span to the steps at which a coordinate is from 0 to below a limit.
void ImageTurn::clip(Span& span, qint64 start, qint64 step, qint64 limit)
{
    if (step < 0) {
        start = limit - 1 - start;
        step = -step;
    }
    if (step == 0) {
        span.end = start >= 0 && start < limit ? span.end : span.first;
        return;
    }
    const qint64 first = start < 0 ? (step - 1 - start) / step : 0;
    const qint64 end = start < limit ? (limit - 1 - start) / step + 1 : 0;
    span.first = int(std::min(std::max(qint64(span.first), first), qint64(span.end)));
    span.end = int(std::max(std::min(qint64(span.end), end), qint64(span.first)));
}

template <class Pixel, class Sample>
void ImageTurn::draw(const Source& source, QImage& to, quint32 fill, Sample sample) const
{
    const Raster<Pixel> pixels(to);
    for (int y = 0; y < pixels.height; ++y) {
        const Path way = path(y, source, to.size());
        Span span = {0, pixels.width};
        clip(span, way.start.x, way.step.x, qint64(source.area.width()) << PointBits);
        clip(span, way.start.y, way.step.y, qint64(source.area.height()) << PointBits);
        Pixel* row = pixels.row(y);
        std::fill(row, row + span.first, Pixel(fill));
        Pixel* const end = row + span.end;
        const qint64 steps = span.first;
        sample(row + span.first, end,
               {{way.start.x + steps * way.step.x, way.start.y + steps * way.step.y}, way.step});
        std::fill(end, row + pixels.width, Pixel(fill));
    }
}

QImage ImageTurn::nearest(const QImage& image, quint32 fill, const QSize& size) const
{
    QImage result = resultOf(image, fill, size);
    if (result.isNull()) {
        return result;
    }
    withRasters(image, result, [&](const auto& from, const auto& to) {
        using Pixel = std::remove_reference_t<decltype(*to.bits)>;
        draw<Pixel>({image.size(), image.size(), 0}, result, fill,
                    [from](Pixel* pixel, Pixel* end, Path path) {
                        for (; pixel < end; ++pixel) {
                            const auto& [x, y] = path.start;
                            *pixel = from.row(int(y >> PointBits))[x >> PointBits];
                            path.start = path.start + path.step;
                        }
                    });
    });
    return result;
}

QImage ImageTurn::bilinear(const QImage& image, quint32 fill, const QSize& size) const
{
    QImage result = resultOf(image, fill, size);
    const QImage source = result.isNull() ? QImage() : bordered(image, fill);
    if (source.isNull()) {
        return {};
    }
    const Raster<const quint32> from(source);
    // The four pixels surround a corner, half a pixel off the centres; the border adds one more
    // pixel.
    const Source area = {image.size(), image.size() + QSize(1, 1), 0.5};
    draw<quint32>(area, result, fill, [from](quint32* pixel, quint32* end, Path path) {
        pixel = mixPairs(from, pixel, end, path);
        for (; pixel < end; ++pixel) {
            *pixel = mixed(Square(from, path.start));
            path.start = path.start + path.step;
        }
    });
    return result;
}

}  // namespace Zorv
