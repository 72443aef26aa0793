// 20,000 sprites of another project, with four palettes, into a file without any: beside unpacking
// them and making sprites of the images in this thread alone; and the longest time in which the
// window does not answer.

#include "family/assets/spritefile.h"
#include "src/image/spriteimport_p.h"
#include "support/bench.h"
#include "support/livelyhost.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

using namespace Family;

namespace {

constexpr int Count = 20000;
constexpr int Rounds = 3;
constexpr int PaletteCount = 4;

/// Each one is another picture.
QImage picture(int kind)
{
    QVector<QRgb> colors = tableOfColors(greyColors());
    colors[1] = qRgb(255, kind % PaletteCount, 0);
    QImage image(64, 96, QImage::Format_Indexed8);
    image.setColorTable(colors);
    for (int y = 0; y < image.height(); ++y) {
        uchar* row = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            row[x] = uchar(((x * (kind % 7 + 1)) ^ (y * (kind % 11 + 1))) % 60);
        }
    }
    for (int bit = 0; bit < 16; ++bit) {
        image.scanLine(0)[bit] = uchar(kind >> bit & 1);
    }
    return image;
}

void fill(SpriteFile* file)
{
    file->beginChange(QStringLiteral("Fill"));
    for (int i = 0; i < Count; ++i) {
        file->addSprite()->setImage(picture(i));
    }
    file->refresh();
    file->endChange();
}

/// `stall` takes the longest time between two turns of the event loop, in milliseconds.
void import(SpriteFile* source, double* stall)
{
    SpriteFile destination;
    QElapsedTimer turn;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        *stall = std::max(*stall, double(turn.nsecsElapsed()) / 1e6);
        turn.restart();
    });
    QVector<Zorv::ImportEntry> entries;
    for (int row = 0; row < Count; ++row) {
        entries.append({source->index(row), source->sprite(row)->id().text()});
    }
    ticks.start(2);  // one that is always due would take a processor
    turn.start();
    Zorv::SpriteImport(&destination, entries, Zorv::ImportConflict::Skip)
        .run(QStringLiteral("Import"));
    QCoreApplication::processEvents();
    if (destination.rowCount() != Count || destination.palettes()->count() != PaletteCount) {
        std::printf("not all sprites have come\n");
    }
}

void importAlone(const SpriteFile& source)
{
    SpriteFile destination;
    destination.beginChange(QStringLiteral("Import"));
    for (const auto& sprite : source.items()) {
        destination.addSprite()->setImage(sprite->image());
    }
    destination.refresh();
    destination.endChange();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    Bench::LivelyHost host(&settings);
    Operations::startHost(&host);
    SpriteFile source;
    fill(&source);
    double stall = 0;
    const double share = Bench::pairedRatio(
        Rounds, [&] { import(&source, &stall); }, [&] { importAlone(source); });
    Bench::ratio("20,000 sprites imported, to images made sprites alone", share, 1, 0.8);
    Bench::ratio("longest stall meanwhile, to 100 ms", stall, 100, 1.0);
    return 0;
}
