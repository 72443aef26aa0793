// A frame of 1,000 sprites with 20 pictures and 4 palettes: calls of GL, memory, and the time
// beside a bare loop and beside QPainter.

#include "graphics/glcontext.h"
#include "graphics/renderer.h"
#include "graphics/renderwidget.h"
#include "graphics/texture.h"
#include "support/allocations.h"
#include "support/bench.h"
#include "support/glprogram.h"
#include "support/gltest.h"

#include <QApplication>
#include <QMatrix4x4>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QPainter>
#include <QRandomGenerator>

#include <cstdio>
#include <memory>
#include <vector>

using namespace Zorv;

namespace {

constexpr int Sprites = 1000;
constexpr int Pictures = 20;
constexpr int Palettes = 4;
constexpr QSize Stage(800, 600);

struct Placed
{
    int picture;
    int palette;
    QRect rect;
    QMatrix4x4 matrix;
};

std::vector<RGBA> colors(int seed)
{
    std::vector<RGBA> result;
    for (int i = 0; i < 256; ++i) {
        result.push_back(RGBA{quint8(i), quint8(i * seed), quint8(255 - i), quint8(i ? 255 : 0)});
    }
    return result;
}

struct Scene
{
    std::vector<QImage> images;
    std::vector<std::unique_ptr<Texture>> textures;
    std::vector<std::unique_ptr<Texture>> palettes;
    std::vector<Placed> sprites;

    Scene()
    {
        QRandomGenerator random(17);
        for (int i = 0; i < Pictures; ++i) {
            QImage image(40 + i * 2, 90 - i, QImage::Format_Indexed8);
            image.setColorTable(QVector<QRgb>(256, 0));
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    // A figure on transparent ground.
                    const bool isInside = x > image.width() / 4 && x < image.width() * 3 / 4;
                    image.setPixel(x, y, isInside ? uint(1 + random.bounded(255)) : 0);
                }
            }
            images.push_back(image);
            textures.push_back(std::make_unique<Texture>(image));
        }
        for (int i = 0; i < Palettes; ++i) {
            palettes.push_back(std::make_unique<Texture>(colors(i + 1).data()));
        }
        for (int i = 0; i < Sprites; ++i) {
            const int picture = random.bounded(Pictures);
            const QRect rect(QPoint(random.bounded(720), random.bounded(510)),
                             images[size_t(picture)].size());
            QMatrix4x4 matrix;
            matrix.translate(rect.x(), rect.y());
            matrix.scale(rect.width(), rect.height());
            sprites.push_back({picture, random.bounded(Palettes), rect, matrix});
        }
    }

    int paletteChanges() const
    {
        int changes = 1;
        for (size_t i = 1; i < sprites.size(); ++i) {
            changes += sprites[i].palette != sprites[i - 1].palette;
        }
        return changes;
    }
    int pictureChanges() const
    {
        int changes = 1;
        for (size_t i = 1; i < sprites.size(); ++i) {
            changes += sprites[i].picture != sprites[i - 1].picture;
        }
        return changes;
    }
};

class Frame : public Renderer
{
public:
    explicit Frame(const Scene& scene) : m_scene(scene) {}

    void render(QPainter& painter) override
    {
        painter.beginNativePainting();
        draw();
        painter.endNativePainting();
    }

    void draw()
    {
        glBeginTextureDrawing();
        for (const Placed& sprite : m_scene.sprites) {
            glSetBlend(true);
            glSetBlendEquation(Add);
            glSetBlendFunction(SourceAlpha, OneMinusSourceAlpha);
            glDrawImage(sprite.matrix, m_scene.textures[size_t(sprite.picture)].get(),
                        m_scene.palettes[size_t(sprite.palette)].get(), 0, 1.0F, true, Plain);
        }
        glEndTextureDrawing();
    }

private:
    const Scene& m_scene;
};

/// What a program would do that draws this frame and nothing else.
class BareLoop : protected QOpenGLFunctions
{
public:
    BareLoop(const Scene& scene, const RenderWidget& widget) : m_scene(scene)
    {
        initializeOpenGLFunctions();
        // The library's own program for images with a palette.
        m_program = widget.findChildren<QOpenGLShaderProgram*>().first();
        m_projection.ortho(QRect(QPoint(), Stage));
    }

    void draw()
    {
        static const float positions[] = {0, 1, 0, 0, 1, 0, 1, 0, 1, 1, 0, 1};
        static const float texCoords[] = {0, 0, 0, 1, 1, 1, 1, 1, 1, 0, 0, 0};
        m_program->bind();
        m_program->setUniformValue("image", 0);
        m_program->setUniformValue("palette", 1);
        m_program->setUniformValue("mask", 1);
        m_program->setUniformValue("opacity", 1.0F);
        const int matrix = m_program->uniformLocation("matrix");
        for (const auto& [name, data] :
             {std::pair("position", positions), {"texCoord", texCoords}}) {
            m_program->enableAttributeArray(name);
            m_program->setAttributeArray(name, data, 2);
        }
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        int palette = -1;
        for (const Placed& sprite : m_scene.sprites) {
            if (sprite.palette != palette) {
                palette = sprite.palette;
                glActiveTexture(GL_TEXTURE1);
                glBindTexture(GL_TEXTURE_2D, m_scene.palettes[size_t(palette)]->id);
                glActiveTexture(GL_TEXTURE0);
            }
            glBindTexture(GL_TEXTURE_2D, m_scene.textures[size_t(sprite.picture)]->id);
            glUniformMatrix4fv(matrix, 1, GL_FALSE, (m_projection * sprite.matrix).constData());
            glDrawArrays(GL_TRIANGLES, 0, 6);
        }
        glDisable(GL_BLEND);
        m_program->disableAttributeArray("texCoord");
        m_program->disableAttributeArray("position");
        m_program->release();
    }

private:
    const Scene& m_scene;
    QOpenGLShaderProgram* m_program;
    QMatrix4x4 m_projection;
};

void countCalls(Scene& scene, RenderWidget& widget, Frame& frame)
{
    widget.makeCurrent();
    GlTest::CallCounter counter;
    frame.draw();
    const GlTest::Calls calls = counter.calls();
    Bench::figure("Draws of a frame", calls.draws(), "");
    Bench::figure("Programs bound", calls.programs, "");
    Bench::ratio("Palettes bound, to changes of palette", calls.palettes, scene.paletteChanges(),
                 1);
    Bench::ratio("Images bound, to changes of picture", calls.images, scene.pictureChanges(), 1);
    Bench::figure("Calls that set what is set", calls.redundant, "");
    Bench::figure("Uniforms set", calls.uniforms, "");
    Bench::figure("Arrays enabled, pointed to, disabled", calls.arrays, "");

    counter.restart();
    scene.palettes[1]->fromPalette(colors(7).data());
    frame.draw();
    Bench::figure("Uploads for another palette", counter.calls().uploads.size(), "");
    Bench::figure("Bytes of them", double(counter.calls().uploadedBytes), "bytes");
    Bench::figure("Sprites drawn with it", counter.calls().draws(), "");
}

void countAllocations(Frame& frame)
{
    const GlTest::SparedDriver spared;
    frame.draw();
    const qint64 before = Bench::allocations();
    frame.draw();
    Bench::figure("Allocations a frame, the driver's aside", double(Bench::allocations() - before),
                  "");
}

void measure(const Scene& scene, RenderWidget& widget, Frame& frame)
{
    widget.makeCurrent();
    QOpenGLFunctions& gl = *widget.context()->functions();
    BareLoop loop(scene, widget);
    const auto own = [&] {
        frame.draw();
        gl.glFinish();
    };
    const auto bare = [&] {
        loop.draw();
        gl.glFinish();
    };
    own();
    Bench::figure("A frame", Bench::median(21, own), "ms");
    Bench::ratio("A frame, to a bare loop", Bench::pairedRatio(41, own, bare), 1, 1.1);

    std::vector<QImage> images;
    for (int i = 0; i < Pictures * Palettes; ++i) {
        QImage image = scene.images[size_t(i / Palettes)];
        const std::vector<RGBA> table = colors(i % Palettes + 1);
        for (int k = 0; k < 256; ++k) {
            const RGBA c = table[size_t(k)];
            image.setColor(k, qRgba(c.r, c.g, c.b, c.a));
        }
        images.push_back(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    QImage stage(Stage, QImage::Format_ARGB32_Premultiplied);
    const auto blit = [&] {
        QPainter painter(&stage);
        for (const Placed& sprite : scene.sprites) {
            painter.drawImage(sprite.rect.topLeft(),
                              images[size_t(sprite.picture * Palettes + sprite.palette)]);
        }
    };
    Bench::ratio("A frame, to QPainter on images of each palette",
                 Bench::pairedRatio(21, own, blit), 1);

    // Without the driver's filling: what the calls themselves cost.
    const GlTest::SparedDriver spared;
    Bench::figure("A frame without the driver", Bench::median(101, own), "ms");
}

}  // namespace

int main(int argc, char** argv)
{
    return Bench::withGl(argc, argv, [] {
        Scene scene;
        Frame frame(scene);
        RenderWidget widget;
        widget.resize(Stage);
        widget.setRenderer(&frame);
        widget.show();
        widget.grabFramebuffer();
        countCalls(scene, widget, frame);
        countAllocations(frame);
        measure(scene, widget, frame);
        widget.setRenderer(nullptr);
    });
}
