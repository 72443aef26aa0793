// RLE8 on sprites of 256 by 256, against plain loops over memory.

#include "sprites.h"
#include "support/bench.h"

#include "media/rle.h"
#include "support/plaincodecs.h"

#include <QBuffer>

namespace {

constexpr int side = 256;
constexpr int rounds = 15;

void measure(SpritePixels::Kind kind, int colors)
{
    const Bench::Sprites sprites(kind, side, colors);
    std::vector<QByteArray> streams;
    for (const QByteArray& pixels : sprites.pixels) {
        streams.push_back(Plain::writeRle8(pixels));
    }
    const double plainWriting = Bench::median(rounds, [&] {
        for (const QByteArray& pixels : sprites.pixels) {
            Plain::writeRle8(pixels);
        }
    });
    const double writing = Bench::median(rounds, [&] {
        for (size_t i = 0; i < streams.size(); ++i) {
            QBuffer buffer;
            Zorv::saveRLE8(sprites.images[i], &buffer);
            if (buffer.size() != streams[i].size()) {
                std::puts("different bytes: the benchmark is wrong");
            }
        }
    });
    Bench::ratio("  writing: own / plain loop over memory", writing, plainWriting, 1 / 1.7);

    QByteArray out(side * side, 0);
    const double plainReading = Bench::median(rounds, [&] {
        for (const QByteArray& bytes : streams) {
            Plain::Bytes in(bytes);
            Plain::readRle8(in, reinterpret_cast<uchar*>(out.data()), out.size());
        }
    });
    QImage image(side, side, QImage::Format_Indexed8);
    const double reading = Bench::median(rounds, [&] {
        for (QByteArray& bytes : streams) {
            QBuffer buffer(&bytes);
            Zorv::loadRLE8(image, &buffer);
        }
    });
    Bench::ratio("  reading: own / plain loop over memory", reading, plainReading, 1 / 2.3);
}

}  // namespace

int main()
{
    for (int kind = 0; kind < SpritePixels::kinds; ++kind) {
        measure(SpritePixels::Kind(kind), 256);
    }
    measure(SpritePixels::Drawn, 32);
    measure(SpritePixels::Noise, 32);
    return 0;
}
