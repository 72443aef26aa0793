// PNG and BMP files of 512 by 512 pixels in memory, against Qt alone, which does not look whether
// the file is whole.

#include "support/bench.h"

#include "media/imagefile.h"
#include "media/losslessimages.h"
#include "support/spritepixels.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>

namespace {

constexpr int side = 512;
constexpr int rounds = 15;

QByteArray saved(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Zorv::saveImage(&buffer, format, image);
    return buffer.data();
}

template <class Load>
QImage loaded(QByteArray& file, Load load)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    load(&buffer, image);
    return image;
}

void measure(const char* name, const QImage& image, double limit)
{
    for (const char* format : {"PNG", "BMP"}) {
        QByteArray file = saved(image, format);
        const auto own = [format](QIODevice* device, QImage& read) {
            Zorv::loadImage(device, format, read);
        };
        const auto qt = [format](QIODevice* device, QImage& read) { read.load(device, format); };
        const auto form = QImage::Format_RGB32;
        if (loaded(file, own).convertToFormat(form) != loaded(file, qt).convertToFormat(form)) {
            std::puts("different pixels: the benchmark is wrong");
        }
        std::printf("%s: %s of %d bytes\n", name, format, file.size());
        Bench::ratio("  reading: own / Qt",
                     Bench::pairedRatio(
                         rounds, [&] { loaded(file, own); }, [&] { loaded(file, qt); }),
                     1, limit);
    }
}

}  // namespace

int main()
{
    Zorv::setLosslessImages(true);
    QRandomGenerator random(1);
    for (const auto kind : {SpritePixels::Drawn, SpritePixels::Dithered, SpritePixels::Noise}) {
        const QImage image =
            SpritePixels::image(SpritePixels::make(kind, side, side, 256, random), side, side);
        // Noise is stored as it is, which costs little more than its checksum.
        const double limit = kind == SpritePixels::Noise ? 1.4 : 1.1;
        measure(SpritePixels::name(kind), image, limit);
        measure("  in true colour", image.convertToFormat(QImage::Format_RGB32), limit);
    }
    return 0;
}
