// Another order for the palette of 5,000 sprites of 128 by 144 pixels, beside unpacking and packing
// them, on as many threads.

#include "family/assets/pixelstore.h"
#include "family/assets/spritefile.h"
#include "family/assets/workpool.h"
#include "operations/hostinterface.h"
#include "operations/media/paletteedits.h"
#include "support/bench.h"

#include <zorv/core/filesystemarchive.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <atomic>

using namespace Family;

namespace {

constexpr int Count = 5000;
constexpr int Rounds = 5;

/// A figure of flat colours with outlines, each one different.
QImage picture(int kind)
{
    QImage image(128, 144, QImage::Format_Indexed8);
    image.setColorTable(tableOfColors(greyColors()));
    image.fill(0);
    for (int y = 4; y < image.height() - 4; ++y) {
        uchar* row = image.scanLine(y);
        const int left = 30 + (y * (kind % 7 + 1) / 9 + kind / 7) % 25;
        const int right = image.width() - 24 - (y * (kind % 5 + 2) / 11 + kind) % 27;
        for (int x = left; x < right; ++x) {
            const bool isEdge = x == left || x == right - 1;
            row[x] = uchar(isEdge ? 1 : 2 + ((x + kind / 100) / 16 + y / 28 * 4) % 28);
        }
    }
    for (int bit = 0; bit < 16; ++bit) {
        image.scanLine(0)[bit] = uchar(kind >> bit & 1);
    }
    return image;
}

void unpackAndPack(const SpriteFile& file)
{
    std::atomic_int empty{0};
    QVector<PackedPixels> packed;
    for (const auto& sprite : file.items()) {
        packed.append(PackedPixels(*sprite->state.pixels.get()));
    }
    WorkPool pool;
    pool.start(packed.size(), [&](int i) {
        const PackedPixels& one = packed.at(i);
        empty += packPixels(one.format, one.rows()).isEmpty() ? 1 : 0;
    });
    pool.wait();
    if (empty > 0) {
        std::printf("%d sprites could not be packed\n", empty.load());
    }
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    Operations::HostInterface host;
    Operations::startHost(&host);
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("bench.sprites"));
    Zorv::Archive& archive = *Zorv::FileSystemArchive::instance();
    {
        SpriteFile made;
        made.beginChange({});
        for (int i = 0; i < Count; ++i) {
            made.insertSprite(i - 1, {quint16(i / 100), quint16(i % 100)}, {64, 143}, picture(i));
        }
        made.endChange();
        if (!made.toFile(archive, name, false)) {
            return 1;
        }
    }
    // Within the colours that LZ5 can hold, so that both sides pack alike.
    const Zorv::PaletteOrder order = Zorv::movedOrder(3, 29);
    double reorder = 0;
    double repack = 0;
    const double ratio = Bench::medianOf(Rounds, [&] {
        SpriteFile file;
        file.fromFile(archive, name, false);
        repack = Bench::once([&] { unpackAndPack(file); });
        reorder = Bench::once([&] { Operations::reorderPalettes(&file, {0}, order); });
        return file.isModified() ? reorder / repack : 0;
    });
    Bench::figure("unpacking and packing 5,000 sprites", repack, "ms");
    Bench::figure("reordering their palette", reorder, "ms");
    Bench::ratio("reordering / unpacking and packing", ratio, 1, 1.5);
    return 0;
}
