// PCX files of 512 by 512 pixels in memory, against a QDataStream read and written a byte
// at a time.

#include "support/bench.h"

#include "media/pcx.h"
#include "support/plaincodecs.h"
#include "support/spritepixels.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>

namespace {

constexpr int side = 512;
constexpr int rounds = 9;

QByteArray saved(const QImage& image, bool (*save)(const QImage&, QIODevice*))
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    save(image, &buffer);
    return buffer.data();
}

QImage loaded(QByteArray& file, bool (*load)(QImage&, QIODevice*))
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    load(image, &buffer);
    return image;
}

void measure(const char* name, const QImage& image)
{
    QByteArray file = saved(image, Zorv::savePCX);
    if (file != saved(image, Plain::savePcx) || loaded(file, Zorv::loadPCX) != image) {
        std::puts("different bytes: the benchmark is wrong");
    }
    std::printf("%s: %d bytes\n", name, file.size());
    Bench::ratio("  writing: own / a stream a byte at a time",
                 Bench::median(rounds, [&] { saved(image, Zorv::savePCX); }),
                 Bench::median(rounds, [&] { saved(image, Plain::savePcx); }), 1 / 3.0);
    Bench::ratio("  reading: own / a stream a byte at a time",
                 Bench::median(rounds, [&] { loaded(file, Zorv::loadPCX); }),
                 Bench::median(rounds, [&] { loaded(file, Plain::loadPcx); }), 1 / 3.0);
}

}  // namespace

int main()
{
    QRandomGenerator random(1);
    for (const auto kind : {SpritePixels::Drawn, SpritePixels::Dithered, SpritePixels::Noise}) {
        const QImage image =
            SpritePixels::image(SpritePixels::make(kind, side, side, 256, random), side, side);
        measure(SpritePixels::name(kind), image);
        measure("  in true colour", image.convertToFormat(QImage::Format_RGB32));
        measure("  with alpha", image.convertToFormat(QImage::Format_ARGB32));
    }
    return 0;
}
