// Merging of layers against memcpy and QPainter, and what steps of undo cost.

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/rasterlayer.h"
#include "support/bench.h"
#include "support/testimagepalette.h"

#include <cstring>

using namespace Zorv;

namespace {

const int Rounds = 21;
const QSize Large(4096, 4096);

QImage indexedNoise(const QSize& size, int lowest)
{
    QImage image(size, QImage::Format_Indexed8);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.scanLine(y)[x] = uchar(lowest + (x * 7 + y * 13) % (256 - lowest));
        }
    }
    return image;
}

void mergeOpaque(int transparentEntries, double limit, const char* name)
{
    TestImagePalette palette;
    for (int i = 0; i < transparentEntries; ++i) {
        palette.colors[i].a = 0;
    }
    ImageCanvas canvas(&palette);
    canvas.setFormat(ImageCanvas::IndexedFormat, false);
    canvas.setSize(Large, {}, false);
    canvas.newRasterLayer({});
    const QImage source = indexedNoise(Large, transparentEntries);
    *canvas.newRasterLayer({})->pixels() = source;
    const double ratio = Bench::pairedRatio(
        Rounds, [&] { canvas.mergeLayers(nullptr); },
        [&] {
            QImage copy(Large, QImage::Format_Indexed8);
            std::memcpy(copy.bits(), source.constBits(), std::size_t(source.sizeInBytes()));
        });
    Bench::ratio(name, ratio, 1, limit);
}

void mergeColors()
{
    const QSize size(1024, 1024);
    ImageCanvas canvas;
    canvas.setSize(size, {}, false);
    QRandomGenerator random(7);
    for (int i = 0; i < 8; ++i) {
        QImage* const pixels = canvas.newRasterLayer({})->pixels();
        random.fillRange(reinterpret_cast<quint32*>(pixels->bits()), size.width() * size.height());
    }
    const double ratio = Bench::pairedRatio(
        Rounds, [&] { canvas.mergeLayers(nullptr); },
        [&] {
            QImage result(size, QImage::Format_ARGB32);
            result.fill(0);
            QPainter painter(&result);
            for (unsigned i = canvas.layers()->count(); i > 0; --i) {
                painter.drawImage(0, 0, canvas.layers()->at(i - 1)->image());
            }
        });
    Bench::ratio("8 true-colour layers of 1024 x 1024, to QPainter", ratio, 1, 1.1);
}

void strokes(ImageCanvas::Format format, const char* form)
{
    TestImagePalette palette;
    ImageCanvas canvas(&palette);
    canvas.setFormat(format, false);
    canvas.setSize(Large, {}, false);
    ImageLayer* const layer = canvas.newRasterLayer({});
    canvas.setActiveLayer(layer);
    canvas.undoStack()->clear();
    const auto paint = [&](const QPoint& from, const QPoint& to, int width, int color) {
        canvas.beginStroke(layer, ImageCanvas::TiledStroke, {});
        const QRect rect =
            (QRect(from, QSize(1, 1)) | QRect(to, QSize(1, 1))).adjusted(0, 0, width, width);
        canvas.willChange(rect);
        canvas.painter()->setColor(quint8(color));
        canvas.painter()->setWidth(width);
        canvas.painter()->line(from, to);
        canvas.changed(rect);
        canvas.endStroke();
    };
    const auto title = [form](const char* text) { return QByteArray(form) + ", " + text; };
    palette.colors[1] = {255, 0, 0, 255};
    paint({2000, 2000}, {2000, 2000}, 1, 1);
    const double small = double(canvas.undoStack()->byteSize());
    Bench::ratio(title("one pixel of 4096 x 4096: bytes kept, to 64 KiB").constData(), small, 65536,
                 1);
    QRandomGenerator random(11);
    double longest = 0;
    for (int i = 0; i < 1000; ++i) {
        const QPoint from(random.bounded(3800), random.bounded(3800));
        const QPoint by(random.bounded(200), random.bounded(200));
        longest = std::max(longest, Bench::once([&] { paint(from, from + by, 24, i % 200); }));
    }
    Bench::ratio(title("1,000 strokes of 24 pixels: bytes kept, to the budget").constData(),
                 double(canvas.undoStack()->byteSize()), double(canvas.undoStack()->budget()), 1);
    Bench::figure(title("steps of 1,000 that can be undone").constData(),
                  canvas.undoStack()->index(), "steps");
    Bench::figure(title("the longest of 1,000 strokes").constData(), longest, "ms");

    QRect part;
    QObject::connect(&canvas, &ImageCanvas::partChanged, &canvas,
                     [&part](ImageLayer*, const QRect& rect) { part = rect; });
    const double undo = Bench::pairedRatio(
        101, [&] { canvas.undoStack()->undo(); },
        [&] {
            QImage shown(part.size(), QImage::Format_RGB32);
            QPainter painter(&shown);
            painter.drawImage(0, 0, canvas.mergePart(part));
        });
    Bench::ratio(title("undo of a stroke, to its repaint").constData(), undo, 1, 3);
}

}  // namespace

int main()
{
    mergeOpaque(0, 2, "merge of an opaque indexed layer, 4096 x 4096, to memcpy");
    mergeOpaque(1, 2, "the same with one transparent entry");
    mergeOpaque(2, 0, "the same with two transparent entries");
    mergeColors();
    strokes(ImageCanvas::IndexedFormat, "indexed");
    strokes(ImageCanvas::RGBAFormat, "true colour");
    return 0;
}
