// What a person waits for in the editor of sprites: 1,000 PNG files that become sprites, with two
// threads beside one, and the longest time in which the window does not answer; and another sprite
// of 20,000 on the canvas, beside one of 20.

#include "family/assets/spritefile.h"
#include "support/bench.h"
#include "support/livelyhost.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/palette/paletteeditor.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/media/imagetransfer.h>
#include <zorv/media/losslessimages.h>

#include <QApplication>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTimer>
#include <ctime>

using namespace Family;

namespace {

constexpr int Files = 1000;
constexpr int Rounds = 5;
constexpr int Selections = 200;
constexpr int Shown = 20;

/// Does not crop.
class Answers : public Zorv::Dialogs
{
public:
    Button question(const QString&, const QString&, Buttons, Button) override { return No; }
};

/// Adds no palettes.
class Panel : public Zorv::PaletteEditor
{
public:
    bool paletteIdentifier(QVariant*) override { return false; }
    void paletteIdentifiers(const QStringList&, QList<QVariant>*, bool*) override {}
    void reorderColors(const QVector<int>&, const Zorv::PaletteOrder&) override {}
};

QImage picture(int kind)
{
    QImage image(160, 128, QImage::Format_Indexed8);
    image.setColorTable(tableOfColors(greyColors()));
    for (int y = 0; y < image.height(); ++y) {
        uchar* row = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            row[x] = uchar((x * (kind % 7 + 1) ^ y * (kind % 11 + 1)) % 60 + (x * y + kind) % 5);
        }
    }
    for (int bit = 0; bit < 16; ++bit) {  // no two are alike
        image.scanLine(0)[bit] = uchar(kind >> bit & 1);
    }
    return image;
}

QStringList makeFiles(const QString& folder)
{
    QStringList files;
    for (int i = 0; i < Files; ++i) {
        files.append(QStringLiteral("%1/%2.png").arg(folder).arg(i, 4, 10, QLatin1Char('0')));
        picture(i).save(files.last());
    }
    return files;
}

/// `stall` takes the longest time between two turns of the event loop, in milliseconds.
void add(const QStringList& files, double* stall)
{
    SpriteFile sprites;
    sprites.insertSprite(-1, {0, 0}, {}, picture(0));
    Panel panel;
    Zorv::SpriteEditor editor(&panel);
    editor.showSprite(&sprites, 0);
    QElapsedTimer turn;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        *stall = std::max(*stall, double(turn.nsecsElapsed()) / 1e6);
        turn.restart();
    });
    ticks.start(2);  // one that is always due would take a processor
    turn.start();
    editor.addFiles(files);
    QCoreApplication::processEvents();
}

/// The same in this thread alone. Gives how many sprites have pixels of their own.
int addAlone(const QStringList& files)
{
    SpriteFile sprites;
    QString error;
    sprites.beginChange(QStringLiteral("Add"));
    for (const QString& file : files) {
        sprites.addSprite()->setImage(Zorv::readImageFile(file, &error));
    }
    sprites.refresh();
    sprites.endChange();
    QSet<const PixelData*> pixels;
    for (const auto& sprite : sprites.items()) {
        pixels.insert(sprite->state.pixels.get());
    }
    return pixels.size();
}

/// Milliseconds that all threads work.
template <class Function>
double processorTime(Function function)
{
    const clock_t before = std::clock();
    function();
    return double(std::clock() - before) * 1000 / CLOCKS_PER_SEC;
}

/// Milliseconds to show the first sprites of a file of `count` by turns.
double select(int count)
{
    SpriteFile sprites;
    for (int i = 0; i < count; ++i) {
        sprites.insertSprite(i - 1, {quint16(i / 1000), quint16(i % 1000)}, {}, picture(i % 50));
    }
    Panel panel;
    Zorv::SpriteEditor editor(&panel);
    const auto walk = [&](int steps) {
        for (int i = 0; i < steps; ++i) {
            editor.showSprite(&sprites, (i * 7 + 1) % Shown);
            QCoreApplication::processEvents();
        }
    };
    walk(Shown);  // both have the pixels of these sprites at hand then
    return Bench::once([&] { walk(Selections); });
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
    Zorv::setLosslessImages(true);  // as the program does; else shades of grey come without pixels
    Answers answers;
    Zorv::Dialogs::setInstance(&answers);
    const QStringList files = makeFiles(folder.path());
    QThreadPool::globalInstance()->setMaxThreadCount(2);
    double stall = 0;
    double cpuOfTwo = 0;
    double cpuOfOne = 0;
    int different = 0;
    const double share = Bench::pairedRatio(
        Rounds, [&] { cpuOfTwo += processorTime([&] { add(files, &stall); }); },
        [&] { cpuOfOne += processorTime([&] { different = addAlone(files); }); });
    Bench::ratio("files, to sprites with pixels of their own", Files, different, 1);
    Bench::ratio("1,000 PNG files, with a thread pool of two to one thread", share, 1, 0.65);
    // Beside other work, two threads of a program get no more than one. Then this tells more.
    Bench::ratio("the same, time of all processors", cpuOfTwo, cpuOfOne, 1.3);
    Bench::ratio("longest stall meanwhile, to 100 ms", stall, 100, 1.0);
    const double many = Bench::medianOf(3, [] { return select(20000) / select(Shown); });
    Bench::ratio("another sprite of 20,000 on the canvas, to one of 20", many, 1, 1.3);
    Zorv::Dialogs::setInstance(nullptr);
    return 0;
}
