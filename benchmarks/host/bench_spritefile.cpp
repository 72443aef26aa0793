// A file of 20,000 sprites of 128 by 144 pixels: opening it beside unpacking them all, unpacking
// with two threads beside one, a copy for recovery beside saving, and how adding sprites grows with
// their number.

#include "family/assets/spritefile.h"
#include "family/assets/spritejobs.h"
#include "support/bench.h"

#include <zorv/core/filesystemarchive.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <atomic>
#include <ctime>
#include <numeric>

using namespace Family;

namespace {

constexpr int Count = 20000;
constexpr int Rounds = 5;

/// A figure of flat colours with outlines and some dither, each one different.
QImage picture(int kind)
{
    constexpr int Width = 128;
    constexpr int Height = 144;
    QImage image(Width, Height, QImage::Format_Indexed8);
    image.setColorTable(tableOfColors(greyColors()));
    image.fill(0);
    for (int y = 4; y < Height - 4; ++y) {
        uchar* row = image.scanLine(y);
        const int left = 30 + (y * (kind % 7 + 1) / 9 + kind / 7) % 25;
        const int right = Width - 24 - (y * (kind % 5 + 2) / 11 + kind) % 27;
        for (int x = left; x < right; ++x) {
            const bool isEdge = x == left || x == right - 1;
            const int shade = 2 + (x + kind / 100) / 16 + (y / 28) * 4;
            row[x] = uchar(isEdge ? 1 : (shade + ((x ^ y) & (kind >> 4) & 1)) % 30);
        }
    }
    // Makes every picture another one.
    for (int bit = 0; bit < 16; ++bit) {
        image.scanLine(0)[bit] = uchar(kind >> bit & 1);
    }
    return image;
}

void add(SpriteFile& file, const QVector<QImage>& pictures, int count)
{
    for (int i = 0; i < count; ++i) {
        file.addSprite()->setImage(pictures[i]);
    }
    file.refresh();
}

void unpackAll(const SpriteFile& file, int threads)
{
    ImageJob job;
    job.rows.resize(int(file.count()));
    std::iota(job.rows.begin(), job.rows.end(), 0);
    std::atomic_int empty{0};
    job.work = [&](int, const QImage& image) { empty += image.isNull() ? 1 : 0; };
    job.threads = threads;
    if (!forEachImage(file, job) || empty > 0) {
        std::printf("%d sprites could not be unpacked\n", empty.load());
    }
}

/// Milliseconds of the processor that a call takes: what else the machine does counts less.
template <class Function>
double worked(Function function)
{
    const std::clock_t start = std::clock();
    function();
    return double(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QVector<QImage> pictures;
    for (int i = 0; i < Count; ++i) {
        pictures.append(picture(i));
    }
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("many.sprites"));
    auto& archive = *Zorv::FileSystemArchive::instance();
    {
        SpriteFile file;
        add(file, pictures, Count);
        if (!file.toFile(archive, name, false)) {
            std::printf("%s\n", qPrintable(file.errorString()));
            return 1;
        }
    }
    Bench::figure("bytes of a sprite in the file", double(QFileInfo(name).size()) / Count, "bytes");

    const double opening = Bench::medianOf(Rounds, [&] {
        SpriteFile fresh;
        return worked([&] { fresh.fromFile(archive, name, false); });
    });
    SpriteFile file;
    file.fromFile(archive, name, false);
    const double unpacking =
        Bench::medianOf(Rounds, [&] { return worked([&] { unpackAll(file, 1); }); });
    Bench::figure("opening a file of 20,000 sprites", opening, "ms");
    Bench::figure("unpacking all of them", unpacking, "ms");
    Bench::ratio("opening / unpacking all", opening, unpacking, 0.1);
    Bench::figure("unpacking with one thread / with two",
                  1 / Bench::pairedRatio(
                          Rounds, [&] { unpackAll(file, 2); }, [&] { unpackAll(file, 1); }),
                  "times (at least 1.70)");

    const QString copy = folder.filePath(QStringLiteral("copy.sprites"));
    const double saving =
        Bench::medianOf(Rounds, [&] { return worked([&] { file.toFile(archive, copy, true); }); });
    const double taking =
        Bench::medianOf(Rounds, [&] { return worked([&] { file.snapshot()->gather(-1); }); });
    Bench::figure("saving them", saving, "ms");
    Bench::ratio("what a recovery copy takes of the main thread / saving", taking, saving, 0.5);

    const auto adding = [&](int count) {
        return Bench::medianOf(3, [&] {
            SpriteFile fresh;
            return worked([&] { add(fresh, pictures, count); });
        });
    };
    const double half = adding(Count / 2);
    const double whole = adding(Count);
    Bench::figure("adding 20,000 sprites", whole, "ms");
    Bench::ratio("adding 20,000 / adding 10,000", whole, half, 2.2);
    const double again = worked([&] { add(file, pictures, Count); });
    Bench::ratio("adding 20,000 that are there / adding them as new ones", again, whole);
    return 0;
}
