// What unsaved work on a canvas of 4096 by 4096 costs the main thread: to tell after a stroke in
// the last corner that there is some, against a comparison of all pixels, and to take the canvas
// for a recovery copy, against copying them.

#include "app/main/mainwindow.h"
#include "app/main/windowinterface.h"
#include "app/paint/paintcommands.h"
#include "app/window/editorregistry.h"
#include "family/assets/spritefile.h"
#include "operations/hostinterface.h"
#include "support/bench.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/image/canvas/canvasrecord.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cstring>

namespace {

constexpr int Side = 4096;
constexpr int Rounds = 15;

bool makeGame(const QDir& folder)
{
    QImage image(Side, Side, QImage::Format_Indexed8);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    image.fill(0);
    Family::SpriteFile sprites;
    folder.mkpath(QStringLiteral("characters/one"));
    QFile main(folder.filePath(QStringLiteral("characters/one/one.character")));
    return sprites.insertSprite(-1, {0, 0}, {0, 0}, image) &&
           sprites.toFile(*Zorv::FileSystemArchive::instance(),
                          folder.filePath(QStringLiteral("characters/one/one.sprites")), true) &&
           main.open(QIODevice::WriteOnly) &&
           main.write("[info]\r\nname = \"One\"\r\n[files]\r\nsprites = \"one.sprites\"\r\n") > 0;
}

void paintCorner(Zorv::ImageCanvas* canvas)
{
    const QRect corner(Side - 8, Side - 8, 8, 8);
    canvas->beginStroke(canvas->activeLayer(), Zorv::ImageCanvas::TiledStroke,
                        QStringLiteral("pen"));
    canvas->willChange(corner);
    uchar* last = canvas->activeLayer()->pixels()->scanLine(Side - 1);
    last[Side - 1] = uchar(last[Side - 1] + 1);
    canvas->changed(corner);
    canvas->endStroke();
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    App::WindowInterface host(&settings);
    Operations::startHost(&host);
    App::MainWindow window;
    host.setWindow(&window);
    window.show();
    const QString file = folder.filePath(QStringLiteral("characters/one/one.sprites"));
    if (!makeGame(QDir(folder.path())) || !window.openPath(folder.path()) ||
        !window.openFile(folder.filePath(QStringLiteral("characters/one/one.character"))) ||
        !window.openFile(file)) {
        return 1;
    }
    const Zorv::SpriteEditor* editor = window.paint()->editor();
    Zorv::ImageCanvas* canvas = editor->renderer()->canvas();
    bool isTold = true;
    const double asked = Bench::medianOf(Rounds, [&] {
        paintCorner(canvas);
        return Bench::once([&] { isTold = editor->isCanvasModified() && isTold; });
    });
    const QByteArray one(Side * Side, '\0');
    QByteArray other(Side * Side, '\0');
    int differences = 0;
    const double compared = Bench::median(Rounds, [&] {
        differences += std::memcmp(one.constData(), other.data(), size_t(one.size()));
    });
    int layers = 0;
    const double taken =
        Bench::median(Rounds, [&] { layers += Zorv::CanvasRecord::of(*canvas).layers.size(); });
    const double copied = Bench::median(
        Rounds, [&] { std::memcpy(other.data(), one.constData(), size_t(one.size())); });
    if (!isTold || differences != 0 || layers != Rounds) {
        return 1;
    }
    Bench::ratio("canvas changed? / memcmp of it", asked, compared, 0.05);
    Bench::ratio("canvas for a recovery copy / memcpy of it", taken, copied, 0.05);
    return 0;
}
