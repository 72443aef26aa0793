// Memory that the export of sprites as PNG files takes, at its peak: 20,000 of them against 2,000.
// Each count is measured in a process of its own, as the command line would do it.

#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "operations/hostinterface.h"
#include "operations/media/spriteexport.h"
#include "support/bench.h"

#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <sys/resource.h>

namespace {

const QSize SpriteSize(64, 96);

// Bodies of a few colours with a ragged edge, all different.
QImage drawSprite(int number)
{
    QImage image(SpriteSize, QImage::Format_Indexed8);
    image.setColorCount(32);
    image.fill(0);
    for (int y = 0; y < image.height(); ++y) {
        uchar* line = image.scanLine(y);
        const int left = (y * 7 + number * 13) % 17;
        for (int x = left; x < image.width() - (number + y) % 19; ++x) {
            line[x] = uchar(1 + (x / 6 + y / 9 + number) % 31);
        }
        line[0] = uchar(number % 32);
        line[1] = uchar(number / 32 % 32);
        line[2] = uchar(number / 1024 % 32);
    }
    return image;
}

bool writeSprites(const QString& fileName, int count)
{
    Family::SpriteCollection* sprites = Family::newSprites(fileName);
    sprites->beginChange({});
    for (int i = 0; i < count; ++i) {
        const Family::AssetId id{quint16(i / 100), quint16(i % 100)};
        sprites->insertSprite(i - 1, id, QPoint(32, 95), drawSprite(i));
    }
    sprites->endChange();
    const bool isWritten = sprites->toFile(*Zorv::FileSystemArchive::instance(), fileName, false);
    sprites->release();
    return isWritten;
}

/// The peak memory of this process in MiB, with the files exported; 0 if they were not.
double exportAndMeasure(const QString& fileName, const QString& folder)
{
    QString error;
    Family::SpriteCollection* sprites = Family::openSprites(fileName, &error);
    if (!sprites) {
        return 0;
    }
    Operations::OutputRequest request;
    request.place = folder;
    const int count = int(sprites->count());
    const int done = Operations::exportSprites(*sprites, {}, request).done;
    sprites->release();
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return done == count ? double(usage.ru_maxrss) / 1024 : 0;
}

double peakOf(int count, double* milliseconds, double* fileSize)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("bench.sprites"));
    if (!writeSprites(fileName, count)) {
        return 0;
    }
    *fileSize = double(QFileInfo(fileName).size()) / 1024 / 1024;
    QProcess process;
    *milliseconds = Bench::once([&] {
        process.start(QCoreApplication::applicationFilePath(),
                      {fileName, folder.filePath(QStringLiteral("out/"))});
        process.waitForFinished(-1);
    });
    return process.readAllStandardOutput().toDouble();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    Operations::HostInterface host;
    Operations::startHost(&host);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3) {
        std::printf("%f\n", exportAndMeasure(arguments[1], arguments[2]));
        return 0;
    }
    double fewTime = 0;
    double manyTime = 0;
    double fileSize = 0;
    const double few = peakOf(2000, &fewTime, &fileSize);
    const double many = peakOf(20000, &manyTime, &fileSize);
    if (few <= 0 || many <= 0) {
        std::printf("bench_spriteexport: the sprites could not be exported\n");
        return 1;
    }
    Bench::figure("peak memory of exporting 2,000 sprites of 64 by 96 as PNG", few, "MiB");
    Bench::figure("peak memory of exporting 20,000", many, "MiB");
    Bench::figure("of which their file, packed, is", fileSize, "MiB");
    Bench::ratio("peak memory, 20,000 against 2,000", many, few, 2);
    Bench::ratio("time of a sprite, 20,000 against 2,000", manyTime / 10, fewTime);
    return 0;
}
