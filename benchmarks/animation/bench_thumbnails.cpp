// Scrolling through the pictures of 50,000 sprites of 128 by 144 pixels, each with its mark: the
// longest time in which the event loop hears of nothing, beside that of an empty list.

#include "animation/thumbnails/spritelist.h"
#include "animation/thumbnails/spriteuses.h"
#include "family/assets/spritefile.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "support/bench.h"

#include <zorv/core/filesystemarchive.h>

#include <QApplication>
#include <QEventLoop>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

using namespace Zorv;

namespace {

constexpr int Count = 50000;
constexpr int Rounds = 5;
constexpr int Pages = 100;
constexpr int PagePause = 16;  // milliseconds
constexpr double Limit = 16;   // milliseconds

/// Flat colours with an edge and some dither, each one different.
QImage picture(int kind)
{
    QImage image(128, 144, QImage::Format_Indexed8);
    image.setColorTable(Family::tableOfColors(Family::greyColors()));
    for (int y = 0; y < image.height(); ++y) {
        uchar* row = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            const int shade = (x + kind % 97) / 16 + y / 28 * 4;
            row[x] = uchar((shade + ((x ^ y) & kind & 1)) % 30);
        }
    }
    for (int bit = 0; bit < 16; ++bit) {
        image.scanLine(0)[bit] = uchar(kind >> bit & 1);
    }
    return image;
}

bool fill(Family::SpriteFile* sprites, const QString& fileName)
{
    Family::SpriteFile made;
    for (int i = 0; i < Count; ++i) {
        made.addSprite()->setImage(picture(i));
    }
    made.refresh();
    auto& archive = *FileSystemArchive::instance();
    return made.toFile(archive, fileName, false) && sprites->fromFile(archive, fileName, false);
}

/// The longest gap between two turns of the loop while a person scrolls a page at a time, through
/// all of the list.
double longestStall(SpriteList* list)
{
    QEventLoop loop;
    QElapsedTimer clock;
    qint64 longest = 0;
    QTimer probe;
    QObject::connect(&probe, &QTimer::timeout, &loop, [&] {
        longest = std::max(longest, clock.nsecsElapsed());
        clock.start();
    });
    int page = 0;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, &loop, [&] {
        QScrollBar* bar = list->verticalScrollBar();
        bar->setValue(int(qint64(bar->maximum()) * page / Pages));
        if (++page > Pages) {
            loop.quit();
        }
    });
    clock.start();
    probe.start(0);
    person.start(PagePause);
    loop.exec();
    return double(longest) / 1e6;
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QTemporaryDir folder;
    Family::SpriteFile sprites;
    if (!fill(&sprites, folder.filePath(QStringLiteral("many.sprites")))) {
        std::printf("%s\n", qPrintable(sprites.errorString()));
        return 1;
    }
    Family::FamilyDocument document(Family::FileKind::Animations);
    document.fromString(QStringLiteral("animation 0\n") +
                        QStringLiteral("frame 0,1 delay 4\nframe 0,9 delay 4\n").repeated(5000));
    SpriteUses uses;
    uses.setAnimations({document.animations()});
    SpriteList full;
    full.setUses(&uses);
    full.setSprites(&sprites);
    SpriteList empty;
    for (SpriteList* list : {&full, &empty}) {
        list->resize(640, 900);
        list->show();
        application.processEvents();
    }
    const double own = Bench::medianOf(Rounds, [&] { return longestStall(&full); });
    const double peer = Bench::medianOf(Rounds, [&] { return longestStall(&empty); });
    Bench::figure("longest stall while scrolling through 50,000 sprites", own, "ms");
    Bench::figure("longest stall of an empty list", peer, "ms");
    Bench::ratio("what 50,000 sprites add to the stall / 16 ms", own - peer, Limit, 1);
    return 0;
}
