// A picture in twelve palettes: painted whole beside bare QPainter on pictures that are ready, and
// after a small stroke beside the whole. And a picture that is copied beside a PNG file of it.

#include "editors/palette/colorpalette.h"
#include "editors/palette/palettewidget.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageclipboard.h"
#include "image/canvas/imagelayer.h"
#include "image/palettepreviews.h"
#include "support/bench.h"

#include <QApplication>
#include <QBuffer>
#include <QMimeData>
#include <QPainter>

#include <memory>

using namespace Zorv;

namespace {

constexpr int Rounds = 31;
const QSize Side(512, 512);
const QSize Window(1600, 1200);

QVector<PalettePreviews::Preview> palettes()
{
    QVector<PalettePreviews::Preview> all(PalettePreviews::MaxCount);
    for (int i = 0; i < all.size(); ++i) {
        for (int entry = 0; entry < 256; ++entry) {
            all[i].colors.append(qRgb(entry, 255 - entry, i * 20));
        }
    }
    return all;
}

QImage picture(const QVector<QRgb>& colors)
{
    QImage image(Side, QImage::Format_Indexed8);
    image.setColorTable(colors);
    for (int y = 0; y < Side.height(); ++y) {
        for (int x = 0; x < Side.width(); ++x) {
            image.scanLine(y)[x] = uchar(x * 7 + y * 13);
        }
    }
    return image;
}

void paintStroke(ImageCanvas* canvas, int round)
{
    const QRect rect(round * 9 % 500, round * 31 % 500, 4, 4);
    canvas->beginStroke(canvas->activeLayer(), ImageCanvas::TiledStroke, QStringLiteral("pen"));
    canvas->willChange(rect);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        canvas->activeLayer()->pixels()->scanLine(y)[rect.left()] ^= 1;
    }
    canvas->changed(rect);
    canvas->endStroke();
}

}  // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    PaletteWidget grid;
    ColorPalette palette(&grid);
    ImageCanvas canvas(&palette);
    canvas.setFormat(ImageCanvas::IndexedFormat, false);
    canvas.setSize(Side, {}, false);
    const auto all = palettes();
    QImage indexed = picture({});
    canvas.setActiveLayer(canvas.newRasterLayer(indexed));

    PalettePreviews previews;
    previews.setCanvas(&canvas);
    previews.setPreviews(all);
    previews.resize(Window);
    previews.show();
    QCoreApplication::processEvents();

    // As the widget shows them: at half their size.
    QImage ground(Window, QImage::Format_ARGB32_Premultiplied);
    const auto bare = [&] {
        QPainter painter(&ground);
        painter.fillRect(ground.rect(), Qt::white);
        for (int i = 0; i < all.size(); ++i) {
            indexed.setColorTable(all[i].colors);
            painter.drawImage(QRect(QPoint(i % 5 * 262 + 6, i / 5 * 278 + 6), Side / 2), indexed);
        }
    };
    const auto whole = [&] { previews.render(&ground); };
    Bench::ratio("twelve previews : bare QPainter", Bench::pairedRatio(Rounds, whole, bare), 1, 2);

    int round = 0;
    const auto stroke = [&] {
        paintStroke(&canvas, ++round);
        QCoreApplication::processEvents();
    };
    const auto repaint = [&] {
        previews.update();
        QCoreApplication::processEvents();
    };
    Bench::ratio("repaint after a small stroke : whole repaint",
                 Bench::pairedRatio(Rounds, stroke, repaint), 1, 0.2);

    const auto copy = [&] {
        std::unique_ptr<QMimeData>(ImageClipboard::data(&canvas, ImageClipboard::ActiveLayer));
    };
    const auto write = [&] {
        QBuffer file;
        indexed.save(&file, "PNG");
    };
    Bench::ratio("a picture for the clipboard : its PNG file",
                 Bench::pairedRatio(Rounds, copy, write), 1, 1.5);
}
