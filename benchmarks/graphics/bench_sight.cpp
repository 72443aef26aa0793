// A frame as people with colour blindness see it, beside the same frame as it is.

#include "graphics/glcontext.h"
#include "graphics/renderer.h"
#include "graphics/renderwidget.h"
#include "graphics/texture.h"
#include "support/bench.h"
#include "support/glprogram.h"

#include <QApplication>
#include <QMatrix4x4>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPainter>
#include <QRandomGenerator>

#include <array>

using namespace Zorv;

namespace {

constexpr int Sprites = 20;
constexpr QSize Picture(120, 160);
constexpr QSize Stage(1280, 720);
constexpr int Rounds = 41;

/// Sprites with alpha on a ground of one colour, about as many as a fight shows.
class Fight : public Renderer
{
public:
    Fight()
    {
        QRandomGenerator random(18);
        QImage image(Picture, QImage::Format_Indexed8);
        image.setColorTable(QVector<QRgb>(256, 0));
        std::array<RGBA, 256> colors{};
        for (size_t i = 1; i < colors.size(); ++i) {
            colors[i] = {quint8(random.bounded(256)), quint8(random.bounded(256)),
                         quint8(random.bounded(256)), 255};
        }
        for (int y = 0; y < Picture.height(); ++y) {
            for (int x = 0; x < Picture.width(); ++x) {
                const bool isInside = x > Picture.width() / 4 && x < Picture.width() * 3 / 4;
                image.setPixel(x, y, isInside ? uint(1 + random.bounded(255)) : 0);
            }
        }
        m_picture = std::make_unique<Texture>(image);
        m_palette = std::make_unique<Texture>(colors.data());
        for (int i = 0; i < Sprites; ++i) {
            QMatrix4x4 matrix;
            matrix.translate(float(random.bounded(Stage.width() - Picture.width())),
                             float(random.bounded(Stage.height() - Picture.height())));
            matrix.scale(float(Picture.width()), float(Picture.height()));
            m_places.push_back(matrix);
        }
    }

    void render(QPainter& painter) override
    {
        painter.beginNativePainting();
        glBeginTextureDrawing();
        glSetBlend(true);
        glSetBlendEquation(Add);
        glSetBlendFunction(SourceAlpha, OneMinusSourceAlpha);
        for (const QMatrix4x4& place : m_places) {
            glDrawImage(place, m_picture.get(), m_palette.get(), 0, 1.0F, true, Plain);
        }
        glEndTextureDrawing();
        painter.endNativePainting();
    }

private:
    std::unique_ptr<Texture> m_picture;
    std::unique_ptr<Texture> m_palette;
    std::vector<QMatrix4x4> m_places;
};

/// Paints when it is told, and waits for it.
class Window : public RenderWidget
{
public:
    void paint(const ColorSight& sight)
    {
        setColorSight(sight);
        makeCurrent();
        paintGL();
        context()->functions()->glFinish();
    }
};

void measure()
{
    Fight fight;
    Window window;
    window.resize(Stage);
    window.setRenderer(&fight);
    window.show();
    window.grabFramebuffer();
    const auto plain = [&] { window.paint({}); };
    const auto seen = [&] { window.paint(ColorBlindness::Deuteranopia); };
    plain();
    seen();  // its program is made once
    Bench::figure("A frame of 1280 by 720 with 20 sprites", Bench::median(Rounds, plain), "ms");
    Bench::figure("The same with colour blindness", Bench::median(Rounds, seen), "ms");
    Bench::ratio("A frame with colour blindness, to the same without",
                 Bench::pairedRatio(Rounds, seen, plain), 1);
    window.setRenderer(nullptr);
}

}  // namespace

int main(int argc, char** argv)
{
    return Bench::withGl(argc, argv, measure);
}
