// What the person does to the view and to the palette, to the picture on the screen: a large canvas
// beside a small one of which the same is shown. What is out of view must cost nothing.

#include "graphics/renderwidget.h"
#include "image/canvas/imagecanvas.h"
#include "image/imagerenderer.h"
#include "support/bench.h"
#include "support/glprogram.h"
#include "support/testimagepalette.h"

#include <QApplication>

#include <cstdio>
#include <cstring>

using namespace Zorv;

namespace {

const int Layers = 4;
const int Shown = 256;
const int Rounds = 15;
const int Steps = 16;

struct Easel
{
    Easel(int side, ImageCanvas::Format format) : renderer(&palette)
    {
        palette.colors[0].a = 0;
        ImageCanvas& canvas = *renderer.canvas();
        canvas.setFormat(format, false);
        canvas.setSize(QSize(side, side), QPoint(), false);
        QImage image(side, side, QImage::Format_Indexed8);
        image.setColorTable(QVector<QRgb>(256, 0xFF8040C0));
        for (int y = 0; y < side; ++y) {
            std::memset(image.scanLine(y), y % 200, std::size_t(side));
        }
        for (int i = 0; i < Layers; ++i) {
            canvas.setActiveLayer(canvas.newRasterLayer(i == 0 ? image : QImage()));
        }
        renderer.setVisibility(false, true);
        widget.resize(Shown, Shown);
        widget.setRenderer(&renderer);
        widget.show();
        QApplication::processEvents();
        renderer.centralize();
        // What comes into view is made once.
        pan();
        zoom();
    }

    /// Paints at once, and waits for it.
    void paint() { widget.grabFramebuffer(); }

    void pan()
    {
        const QPoint middle = renderer.canvas()->position();
        for (int i = 0; i <= Steps; ++i) {
            renderer.canvas()->setPosition(middle + QPoint(i * 8 - 64, 64 - i * 8));
            paint();
        }
        renderer.canvas()->setPosition(middle);
    }
    void zoom()
    {
        for (int i = 0; i < Steps; ++i) {
            i < Steps / 2 ? renderer.addZoom() : renderer.subZoom();
            paint();
        }
    }
    void changePalette()
    {
        ++palette.colors[9].r;
        renderer.layerChanged();
        paint();
    }

    TestImagePalette palette;
    ImageRenderer renderer;
    RenderWidget widget;
};

void measure(ImageCanvas::Format format, const char* name)
{
    Easel large(4096, format);
    Easel small(1024, format);
    std::printf("%s, a step of panning: %.2f ms; of zoom: %.2f ms; a palette: %.2f ms\n", name,
                Bench::once([&] { small.pan(); }) / Steps,
                Bench::once([&] { small.zoom(); }) / Steps,
                Bench::once([&] { small.changePalette(); }));
    Bench::ratio("panning, 4096 by 4096 / 1024 by 1024",
                 Bench::pairedRatio(
                     Rounds, [&] { large.pan(); }, [&] { small.pan(); }),
                 1, 1.5);
    Bench::ratio("zooming, the same",
                 Bench::pairedRatio(
                     Rounds, [&] { large.zoom(); }, [&] { small.zoom(); }),
                 1, 1.5);
    Bench::ratio("another palette, the same",
                 Bench::pairedRatio(
                     Rounds, [&] { large.changePalette(); }, [&] { small.changePalette(); }),
                 1, 1.5);
}

}  // namespace

int main(int argc, char** argv)
{
    return Bench::withGl(argc, argv, [] {
        measure(ImageCanvas::IndexedFormat, "indexed");
        measure(ImageCanvas::RGBAFormat, "true colour");
    });
}
