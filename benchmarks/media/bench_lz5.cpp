// LZ5 on sprites of 256 by 256: writing against the plain search, which gives the same
// bytes; reading against a plain loop over memory and against LZO.

#include "sprites.h"
#include "support/bench.h"

#include "media/lz5.h"
#include "support/plaincodecs.h"

#include <QBuffer>

#ifdef ZORV_BENCH_LZO
#include <lzo1x.h>
#endif

namespace {

constexpr int side = 256;
constexpr int total = side * side;
constexpr int rounds = 9;

using Streams = std::vector<QByteArray>;

Streams written(const Bench::Sprites& sprites)
{
    Streams streams;
    for (const QImage& image : sprites.images) {
        QBuffer buffer;
        Zorv::saveLZ5(image, &buffer, true);
        streams.push_back(buffer.data());
    }
    return streams;
}

Streams plainWritten(const Bench::Sprites& sprites)
{
    Streams streams;
    for (const QByteArray& pixels : sprites.pixels) {
        streams.push_back(Plain::writeLz5(pixels, true));
    }
    return streams;
}

void read(Streams& streams, QImage& image)
{
    for (QByteArray& bytes : streams) {
        QBuffer buffer(&bytes);
        Zorv::loadLZ5(image, &buffer);
    }
}

void plainRead(const Streams& streams, QByteArray& pixels)
{
    for (const QByteArray& bytes : streams) {
        Plain::Bytes in(bytes);
        Plain::readLz5(in, reinterpret_cast<uchar*>(pixels.data()) + Plain::Lz5Front, total);
    }
}

#ifdef ZORV_BENCH_LZO
double timeOfLzo(const Bench::Sprites& sprites)
{
    Streams streams;
    QByteArray work(LZO1X_1_MEM_COMPRESS, 0), out(total, 0);
    for (const QByteArray& pixels : sprites.pixels) {
        QByteArray packed(total + total / 16 + 67, 0);
        lzo_uint size = 0;
        lzo1x_1_compress(reinterpret_cast<const uchar*>(pixels.constData()), total,
                         reinterpret_cast<uchar*>(packed.data()), &size, work.data());
        streams.push_back(packed.left(int(size)));
    }
    return Bench::median(rounds, [&] {
        for (const QByteArray& packed : streams) {
            lzo_uint length = total;
            lzo1x_decompress_safe(reinterpret_cast<const uchar*>(packed.constData()),
                                  lzo_uint(packed.size()), reinterpret_cast<uchar*>(out.data()),
                                  &length, nullptr);
        }
    });
}
#endif

void measure(SpritePixels::Kind kind, int colors)
{
    const Bench::Sprites sprites(kind, side, colors);
    Streams streams = written(sprites);
    QImage image(side, side, QImage::Format_Indexed8);
    QByteArray pixels(Plain::Lz5Front + total, 0);
    read(streams, image);
    if (streams != plainWritten(sprites) || SpritePixels::pixels(image) != sprites.pixels.back()) {
        std::puts("different bytes: the benchmark is wrong");
    }
    const double plainWriting = Bench::median(3, [&] { plainWritten(sprites); });
    const double writing = Bench::median(rounds, [&] { written(sprites); });
    const double limit = kind == SpritePixels::Noise ? 1.1 : 0.1;
    Bench::ratio("  writing: own / plain search of the same bytes", writing, plainWriting, limit);
    const double plainReading = Bench::median(rounds, [&] { plainRead(streams, pixels); });
    const double reading = Bench::median(rounds, [&] { read(streams, image); });
    Bench::ratio("  reading: own / plain loop over memory", reading, plainReading, 0.5);
#ifdef ZORV_BENCH_LZO
    Bench::ratio("  reading: own / LZO's safe decoder", reading, timeOfLzo(sprites));
#else
    std::puts("  LZO is not installed: no peer");
#endif
}

}  // namespace

int main()
{
#ifdef ZORV_BENCH_LZO
    lzo_init();
#endif
    for (int kind = 0; kind < SpritePixels::kinds; ++kind) {
        measure(SpritePixels::Kind(kind), 32);
    }
    measure(SpritePixels::Drawn, 8);
    measure(SpritePixels::Noise, 2);
    return 0;
}
