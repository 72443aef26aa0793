// From an event of the mouse to the picture on the screen, in the middle of a stroke of 24 pixels
// on eight layers: a large canvas beside a small one of which the same is shown.

#include "graphics/renderwidget.h"
#include "image/canvas/imagecanvas.h"
#include "image/imagerenderer.h"
#include "image/tools/basepentool.h"
#include "support/bench.h"
#include "support/glprogram.h"
#include "support/testimagepalette.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSlider>

#include <cmath>
#include <cstdio>

using namespace Zorv;

namespace {

const int Layers = 8;
const int Shown = 256;
const int Moves = 24;
const int Rounds = 15;

class CountingRenderer : public ImageRenderer
{
public:
    using ImageRenderer::ImageRenderer;
    void render(QPainter& painter) override
    {
        ++painted;
        ImageRenderer::render(painter);
    }
    int painted = 0;
};

struct Easel
{
    Easel(int side, ImageCanvas::Format format) : renderer(&palette)
    {
        palette.colors[0].a = 0;
        ImageCanvas& canvas = *renderer.canvas();
        canvas.setFormat(format, false);
        canvas.setSize(QSize(side, side), QPoint(), false);
        for (int i = 0; i < Layers; ++i) {
            canvas.setActiveLayer(canvas.newRasterLayer(QImage()));
        }
        renderer.setVisibility(false, true);
        renderer.setCurrentTool(ImageTool::PenTool);
        qobject_cast<BasePenTool*>(renderer.currentTool())->slider()->setValue(24);
        widget.resize(Shown, Shown);
        widget.setRenderer(&renderer);
        widget.show();
        QApplication::processEvents();
        stroke();
        if (renderer.painted < Moves) {
            std::puts("Not each move is painted.");
        }
    }

    void send(QEvent::Type type, double angle, Qt::MouseButton button)
    {
        const QPointF pos(Shown / 2.0 + 80 * std::cos(angle), Shown / 2.0 + 80 * std::sin(angle));
        QMouseEvent event(type, pos, button, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &event);
        // Paints at once, and waits for it.
        widget.grabFramebuffer();
    }

    /// Milliseconds of its moves; press and release are beside them.
    double moves()
    {
        // Each stroke changes what the one before has painted.
        palette.setForeground(uchar(1 + ++strokes % 200));
        send(QEvent::MouseButtonPress, 0, Qt::LeftButton);
        const double time = Bench::once([this] {
            for (int i = 1; i <= Moves; ++i) {
                send(QEvent::MouseMove, i * 0.2, Qt::NoButton);
            }
        });
        send(QEvent::MouseButtonRelease, Moves * 0.2, Qt::LeftButton);
        return time;
    }
    double stroke()
    {
        return Bench::once([this] { moves(); });
    }

    TestImagePalette palette;
    CountingRenderer renderer;
    RenderWidget widget;
    int strokes = 0;
};

void measure(ImageCanvas::Format format, const char* name)
{
    Easel large(4096, format);
    Easel small(Shown, format);
    const double moves = Bench::medianOf(Rounds, [&] { return large.moves() / small.moves(); });
    const double strokes = Bench::medianOf(Rounds, [&] { return large.stroke() / small.stroke(); });
    std::printf("%s, a move: %.2f ms\n", name, small.moves() / Moves);
    Bench::ratio("a move painted, 4096 by 4096 / 256 by 256", moves, 1, 1.5);
    Bench::ratio("a stroke with press and release, the same", strokes, 1);
}

}  // namespace

int main(int argc, char** argv)
{
    return Bench::withGl(argc, argv, [] {
        measure(ImageCanvas::IndexedFormat, "indexed");
        measure(ImageCanvas::RGBAFormat, "true colour");
    });
}
