// Quantizing images of several kinds, against libimagequant at its fastest. Only this program
// links it.

#include "media/colorconversion.h"
#include "media/tools/colorquantizer.h"

#include "support/bench.h"

#include <QImage>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

#ifdef ZORV_BENCH_IMAGEQUANT
#include <libimagequant.h>
extern "C" void omp_set_num_threads(int);
#endif

using Zorv::ColorQuantizer;

namespace {

const int Rounds = 9;

using Shader = std::function<QRgb(double x, double y)>;

QImage shaded(int size, const Shader& shader)
{
    QImage image(size, size, QImage::Format_ARGB32);
    for (int y = 0; y < size; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size; ++x) {
            line[x] = shader(double(x) / size, double(y) / size);
        }
    }
    return image;
}

int level(double value)
{
    return qBound(0, qRound(value), 255);
}

QRgb gradient(double x, double y)
{
    return qRgb(level(255 * x), level(255 * y), level(255 * (1 - x) * (1 - y)));
}

QRgb narrowGradient(double x, double y)
{
    return qRgb(level(90 + 40 * x), level(60 + 40 * y), level(40 + 30 * x * y));
}

/// Light and shade in many colours with the grain of a sensor.
Shader photo()
{
    auto grain = std::make_shared<QRandomGenerator>(1);
    return [grain](double x, double y) {
        const auto noise = [&grain] {
            return double(grain->bounded(24)) + double(grain->bounded(24)) - 23.5;
        };
        const double light = 0.55 + 0.45 * std::sin(9 * x + 5 * y * y) * std::cos(7 * y);
        return qRgb(level(light * (140 + 110 * std::sin(3 * y)) + noise()),
                    level(light * (150 + 60 * std::cos(5 * x)) + noise()),
                    level(light * (120 + 120 * x * y) + noise()));
    };
}

/// A ball with a soft edge on a transparent ground.
QRgb sprite(double x, double y)
{
    const double dx = x - 0.5;
    const double dy = y - 0.5;
    const double distance = std::hypot(dx, dy);
    const int alpha = level(255 * (0.45 - distance) / 0.05);
    if (alpha == 0) {
        return 0;
    }
    const double light = 1 - 1.6 * std::hypot(dx + 0.15, dy + 0.15);
    const bool stripe = int(20 * (x + y)) % 3 == 0;
    return qRgba(level(60 + 190 * light), level((stripe ? 120 : 30) + 100 * light),
                 level((stripe ? 20 : 90) + 60 * light), alpha);
}

QRgb fewColors(double x, double y)
{
    const int tile = int(12 * x) + 12 * int(12 * y);
    return qRgb(tile * 37 % 256, tile * 91 % 256, tile * 151 % 256);
}

QRgb colorOf(const QImage& image, int x, int y)
{
    const QRgb color = image.pixel(x, y);
    return qAlpha(color) == 0 ? 0 : color;
}

double meanSquaredError(const QImage& image, const QImage& other)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb a = colorOf(image, x, y);
            const QRgb b = colorOf(other, x, y);
            for (int shift = 0; shift < 32; shift += 8) {
                const int difference = int(a >> shift & 255) - int(b >> shift & 255);
                sum += difference * difference;
            }
        }
    }
    return sum / (4.0 * image.width() * image.height());
}

#ifdef ZORV_BENCH_IMAGEQUANT

/// Fills `result`, an indexed image, and its palette.
void quantizeWithPeer(const QImage& rgba, int count, QImage& result)
{
    liq_attr* attributes = liq_attr_create();
    liq_set_speed(attributes, 10);
    liq_set_max_colors(attributes, count);
    liq_image* source =
        liq_image_create_rgba(attributes, rgba.constBits(), rgba.width(), rgba.height(), 0);
    liq_result* quantized = nullptr;
    if (liq_image_quantize(source, attributes, &quantized) == LIQ_OK) {
        liq_set_dithering_level(quantized, 0);
        liq_write_remapped_image(quantized, source, result.bits(), size_t(result.sizeInBytes()));
        const liq_palette* palette = liq_get_palette(quantized);
        result.setColorCount(256);
        for (unsigned i = 0; i < palette->count; ++i) {
            const liq_color color = palette->entries[i];
            result.setColor(int(i), qRgba(color.r, color.g, color.b, color.a));
        }
        liq_result_destroy(quantized);
    }
    liq_image_destroy(source);
    liq_attr_destroy(attributes);
}

void comparePeer(const QByteArray& what, const QImage& image, int count, double time, double error)
{
    const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888);
    QImage result(image.size(), QImage::Format_Indexed8);
    const double peerTime = Bench::median(Rounds, [&] { quantizeWithPeer(rgba, count, result); });
    const double peerError = meanSquaredError(image, result);
    Bench::figure((what + ": libimagequant, speed 10").constData(), peerTime, "ms");
    Bench::figure((what + ": its error").constData(), peerError, "");
    Bench::ratio((what + ": time / libimagequant's").constData(), time, peerTime, 1.0 / 3);
    // An exact result has nothing to be measured against.
    Bench::ratio((what + ": error / libimagequant's").constData(), error, qMax(peerError, 1e-9),
                 1.5);
}

#else

void comparePeer(const QByteArray&, const QImage&, int, double, double) {}

#endif

void measure(const QByteArray& kind, const QImage& image, int count)
{
    const QByteArray what = kind + ", " + QByteArray::number(image.width()) + " squared, " +
                            QByteArray::number(count) + " colours";
    QImage result;
    const double time =
        Bench::median(Rounds, [&] { result = ColorQuantizer::quantize(image, count); });
    const double error = meanSquaredError(image, result);
    Bench::figure((what + ": quantized").constData(), time, "ms");
    Bench::figure((what + ": error").constData(), error, "");
    comparePeer(what, image, count, time, error);
}

/// The nearest of 256 colours for each pixel, against a look at all of them.
void measureAdapt(const QImage& image)
{
    ColorQuantizer quantizer;
    quantizer.addImage(image);
    QVector<Zorv::RGBA> palette = quantizer.palette(256);
    const double time = Bench::median(Rounds, [&] { ColorQuantizer::adapt(image, palette); });
    palette.resize(256);
    QImage result(image.size(), QImage::Format_Indexed8);
    const double plainTime = Bench::once([&] {
        for (int y = 0; y < image.height(); ++y) {
            const auto* line = reinterpret_cast<const Zorv::BGRA*>(image.constScanLine(y));
            std::transform(line, line + image.width(), result.scanLine(y), [&](Zorv::BGRA pixel) {
                return Zorv::nearestColor(pixel, palette.constData());
            });
        }
    });
    Bench::figure("photo, 1024 squared, the nearest of 256 colours: adapted", time, "ms");
    Bench::ratio("the same: time / nearestColor() for each pixel", time, plainTime);
}

}  // namespace

int main()
{
#ifdef ZORV_BENCH_IMAGEQUANT
    omp_set_num_threads(1);
#else
    std::printf("libimagequant is not installed: nothing to compare with\n");
#endif
    for (const int size : {256, 1024}) {
        for (const int count : {32, 256}) {
            measure("gradient", shaded(size, gradient), count);
            measure("narrow gradient", shaded(size, narrowGradient), count);
            measure("photo with grain", shaded(size, photo()), count);
            measure("sprite with alpha", shaded(size, sprite), count);
            measure("few colours", shaded(size, fewColors), count);
        }
    }
    measureAdapt(shaded(1024, photo()));
    return 0;
}
