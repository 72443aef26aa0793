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

/// The weights of the right and of the lower neighbours, of 256.
struct Weights
{
    unsigned right;
    unsigned lower;
};

#ifdef __SSE2__
quint32 mixedOpaque(const quint32* upper, const quint32* lower, Weights weights)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i half = _mm_set1_epi16(128);
    const auto pair = [zero](const quint32* pixels) {
        return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(pixels)), zero);
    };
    // Sums below 2 to the power of 16 come out right although the differences may be negative.
    const __m128i top = pair(upper);
    const __m128i change =
        _mm_mullo_epi16(_mm_sub_epi16(pair(lower), top), _mm_set1_epi16(short(weights.lower)));
    const __m128i column =
        _mm_srli_epi16(_mm_add_epi16(_mm_add_epi16(_mm_slli_epi16(top, 8), change), half), 8);
    const __m128i right = _mm_unpackhi_epi64(column, column);
    const __m128i across =
        _mm_mullo_epi16(_mm_sub_epi16(right, column), _mm_set1_epi16(short(weights.right)));
    const __m128i sum =
        _mm_srli_epi16(_mm_add_epi16(_mm_add_epi16(_mm_slli_epi16(column, 8), across), half), 8);
    return quint32(_mm_cvtsi128_si32(_mm_packus_epi16(sum, sum)));
}
#else
WidePixel mixedPair(WidePixel first, WidePixel second, unsigned part)
{
    return (first * (256 - part) + second * part + WideHalf) >> 8 & WideMask;
}

quint32 mixedOpaque(const quint32* upper, const quint32* lower, Weights weights)
{
    const WidePixel left = mixedPair(widened(upper[0]), widened(lower[0]), weights.lower);
    const WidePixel right = mixedPair(widened(upper[1]), widened(lower[1]), weights.lower);
    return narrowed(mixedPair(left, right, weights.right));
}
#endif

quint32 mixedWithAlpha(const quint32* upper, const quint32* lower, Weights weights)
{
    const float right = float(weights.right) / 256;
    const float down = float(weights.lower) / 256;
    Mixture sum = {};
    add(sum, mixtureOf(upper[0]), (1 - right) * (1 - down));
    add(sum, mixtureOf(upper[1]), right * (1 - down));
    add(sum, mixtureOf(lower[0]), (1 - right) * down);
    add(sum, mixtureOf(lower[1]), right * down);
    return pixelOf(sum);
}

quint32 mixed(const quint32* upper, const quint32* lower, Weights weights)
{
    // Only where all that counts is opaque the mixture is.
    const quint32 result = mixedOpaque(upper, lower, weights);
    if (result >> 24 == 255) {
        return result;
    }
    const bool flat = upper[0] == upper[1] && lower[0] == lower[1] && upper[0] == lower[0];
    return flat ? upper[0] : mixedWithAlpha(upper, lower, weights);
}

/// The image with a border of one pixel of a colour.
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
    for (int y = 0; y < from.height; ++y) {
        quint32* row = to.row(y + 1);
        row[0] = fill;
        std::copy_n(from.row(y), from.width, row + 1);
        row[to.width - 1] = fill;
    }
    return result;
}

/// An image for the result. Corners that are not opaque make alpha of the unused byte, which is
/// that of an opaque pixel in each comparable image.
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
    // A corner that only just touches a pixel needs none.
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

/// Keeps the steps of a span at which a coordinate is from 0 to below a limit.
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
        qint64 u = way.start.x + span.first * way.step.x;
        qint64 v = way.start.y + span.first * way.step.y;
        Pixel* const end = row + span.end;
        for (Pixel* pixel = row + span.first; pixel < end; ++pixel) {
            *pixel = sample(u, v);
            u += way.step.x;
            v += way.step.y;
        }
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
        draw<Pixel>({image.size(), image.size(), 0}, result, fill, [from](qint64 u, qint64 v) {
            return from.row(int(v >> PointBits))[u >> PointBits];
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
    // The four pixels lie around a corner, half a pixel off the centres; the border adds one more.
    const Source area = {image.size(), image.size() + QSize(1, 1), 0.5};
    draw<quint32>(area, result, fill, [&from](qint64 u, qint64 v) {
        const quint32* upper = from.row(int(v >> PointBits)) + (u >> PointBits);
        const auto* lower =
            reinterpret_cast<const quint32*>(reinterpret_cast<const uchar*>(upper) + from.stride);
        return mixed(upper, lower, {unsigned(u >> 24 & 255), unsigned(v >> 24 & 255)});
    });
    return result;
}

}  // namespace Zorv
