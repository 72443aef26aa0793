#include "graphics/canvas.h"
#include "support/testtable.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(std::function<void()>)

struct Look
{
    int flip = 0;
    float opacity = 1;
    bool mask = true;
    int shading = Renderer::Plain;
    bool subtract = false;
};

Q_DECLARE_METATYPE(Look)

/// Pixels compared with plain loops, and the calls that they take.
class TestTextureDrawing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void drawsImages_data();
    void drawsImages();
    void blends_data();
    void blends();
    void drawsTiles_data();
    void drawsTiles();
    void spacesTiles();
    void drawsNothing_data();
    void drawsNothing();
    void repeatsNoState();
    void countsCalls();
    void isLeftAsPainterExpects();
};

namespace {

int channel(double value)
{
    return int(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

/// One channel as the shader shades it and GL blends it.
int blended(int color, int alpha, int ground, const Look& look, double shade)
{
    const double a = (look.mask ? alpha / 255.0 : 1.0) * double(look.opacity);
    const double c = std::clamp(color / 255.0 + shade, 0.0, 1.0) * a;
    const double g = ground / 255.0;
    return channel(look.subtract ? g - c : c + g * (1 - a));
}

/// The plain model: nearest pixel, one after the other.
void draw(QImage& out, const QImage& colors, QRect rect, const Look& look)
{
    const double shade = look.shading == Renderer::Lighter  ? 0.5
                         : look.shading == Renderer::Darker ? -0.5
                                                            : 0.0;
    for (int y = 0; y < rect.height(); ++y) {
        for (int x = 0; x < rect.width(); ++x) {
            int fromX = int((x + 0.5) * colors.width() / rect.width());
            int fromY = int((y + 0.5) * colors.height() / rect.height());
            fromX = look.flip & Renderer::FlipHorizontally ? colors.width() - 1 - fromX : fromX;
            fromY = look.flip & Renderer::FlipVertically ? colors.height() - 1 - fromY : fromY;
            const QPoint at = rect.topLeft() + QPoint(x, y);
            const QRgb color = colors.pixel(fromX, fromY);
            if (!out.rect().contains(at) || (look.mask && qAlpha(color) == 0)) {
                continue;
            }
            const QRgb ground = out.pixel(at);
            const bool gray = look.shading == Renderer::Grayscale;
            const int alpha = qAlpha(color);
            const int red = qRed(color);
            out.setPixel(
                at, qRgb(blended(red, alpha, qRed(ground), look, shade),
                         blended(gray ? red : qGreen(color), alpha, qGreen(ground), look, shade),
                         blended(gray ? red : qBlue(color), alpha, qBlue(ground), look, shade)));
        }
    }
}

/// The largest difference of a channel; GL may round otherwise.
int difference(const QImage& a, const QImage& b)
{
    int largest = a.size() == b.size() ? 0 : 256;
    for (int y = 0; largest < 256 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({largest, qAbs(qRed(p) - qRed(q)), qAbs(qGreen(p) - qGreen(q)),
                                qAbs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

}  // namespace

void TestTextureDrawing::initTestCase()
{
    QVERIFY(isContextUsable());
}

void TestTextureDrawing::init()
{
    s = std::make_unique<Fixture>();
    QVERIFY(QTest::qWaitForWindowExposed(&s->widget));
}

void TestTextureDrawing::cleanup()
{
    s.reset();
}

void TestTextureDrawing::drawsImages_data()
{
    columns<bool, QRect, Look>("indexed", "rect", "look");
    const QRect actual(3, 4, 13, 9);
    for (bool indexed : {true, false}) {
        const char* const kind = indexed ? "indices" : "colours";
        for (int flip = 0; flip < 4; ++flip) {
            QTest::addRow("%s, flip %d", kind, flip) << indexed << actual << Look{flip};
        }
        for (int shading = 0; shading < 4; ++shading) {
            QTest::addRow("%s, shading %d", kind, shading)
                << indexed << actual << Look{1, 1.0F, true, shading};
        }
        QTest::addRow("%s, no mask", kind) << indexed << actual << Look{0, 1.0F, false};
        QTest::addRow("%s, faint", kind) << indexed << actual << Look{0, 0.3F, true, 2};
        QTest::addRow("%s, no mask, faint", kind) << indexed << actual << Look{3, 0.6F, false, 3};
        QTest::addRow("%s, enlarged", kind) << indexed << QRect(-5, -4, 39, 36) << Look{2};
        QTest::addRow("%s, larger than the widget", kind)
            << indexed << QRect(-130, -90, 260, 180) << Look{};
        QTest::addRow("%s, one pixel", kind) << indexed << QRect(9, 9, 1, 1) << Look{};
    }
}

void TestTextureDrawing::drawsImages()
{
    QFETCH(bool, indexed);
    QFETCH(QRect, rect);
    QFETCH(Look, look);
    const QImage image = indices(13, 9);
    const QImage colors = inColor(image, palette(1));
    Texture texture(indexed ? image : colors);
    Texture first(palette(1).data());
    Texture second(palette(2).data());
    s->canvas.draw = [&] {
        setAlphaBlending();
        const auto flip = uchar(look.flip);
        const auto shading = uchar(look.shading);
        s->canvas.glDrawImage(placed(rect), &texture, &first, flip, look.opacity, look.mask,
                              shading);
        // The same in other colours: no image is needed for it.
        s->canvas.glDrawImage(placed(rect.translated(20, 15)), &texture, &second, flip,
                              look.opacity, look.mask, shading);
    };
    QImage expected = ground();
    draw(expected, colors, rect, look);
    draw(expected, indexed ? inColor(image, palette(2)) : colors, rect.translated(20, 15), look);
    const QImage actual = painted();
    QVERIFY2(difference(actual, expected) <= 2,
             qPrintable(QString::number(difference(actual, expected))));
}

void TestTextureDrawing::blends_data()
{
    columns<std::function<void()>, QRgb>("setUp", "expected");
    const auto add = [](const char* name, QRgb expected, std::function<void()> setUp) {
        row(name, std::move(setUp), expected);
    };
    const auto set = [](int equation, int source, int destination) {
        s->canvas.glSetBlend(true);
        s->canvas.glSetBlendEquation(Renderer::BlendEquation(equation));
        s->canvas.glSetBlendFunction(Renderer::BlendFactor(source),
                                     Renderer::BlendFactor(destination));
    };
    const QRgb replaced = qRgb(200, 100, 50);
    const QRgb added = qRgb(220, 140, 110);
    add("off", replaced, [] {});
    add("added", added, [=] { set(Renderer::Add, Renderer::One, Renderer::One); });
    add("subtracted", qRgb(0, 0, 10),
        [=] { set(Renderer::ReverseSubtract, Renderer::SourceAlpha, Renderer::One); });
    add("multiplied", qRgb(16, 16, 12),
        [=] { set(Renderer::Add, Renderer::DestinationColor, Renderer::Zero); });
    add("any other equation adds", added, [=] { set(7, Renderer::One, Renderer::One); });
    add("no such factor", added, [=] {
        set(Renderer::Add, Renderer::One, Renderer::One);
        set(Renderer::Add, 6, -1);
    });
    add("off again", replaced, [=] {
        set(Renderer::Add, Renderer::One, Renderer::One);
        s->canvas.glSetBlend(false);
    });
    add("on again, with what was set before", added, [=] {
        set(Renderer::Add, Renderer::One, Renderer::One);
        s->canvas.glSetBlend(false);
        set(Renderer::Add, Renderer::One, Renderer::One);
    });
}

void TestTextureDrawing::blends()
{
    QFETCH(std::function<void()>, setUp);
    QFETCH(QRgb, expected);
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(qRgb(200, 100, 50));
    Texture texture(image);
    s->canvas.draw = [&] {
        setUp();
        s->canvas.glDrawImage(placed({0, 0, 8, 8}), &texture, nullptr, 0, 1, true, 0);
    };
    for (int round = 0; round < 2; ++round) {
        QImage filled(8, 8, QImage::Format_RGB32);
        filled.fill(expected);
        QVERIFY(difference(painted().copy(0, 0, 8, 8), filled) <= 1);
    }
}

void TestTextureDrawing::drawsTiles_data()
{
    // `shown`: where those that can be seen begin
    columns<QPoint, QSize, QRect, int, QPoint, QSize>("tiles", "image", "first", "flip", "shown",
                                                      "drawn");
    const QSize size(13, 9);
    const QSize small(2, 2);
    const auto add = [](const char* name, QPoint tiles, QSize image, QRect first, int flip,
                        QPoint shown,
                        QSize drawn) { row(name, tiles, image, first, flip, shown, drawn); };
    add("six", {3, 2}, size, {3, 4, 13, 9}, 0, {3, 4}, {3, 2});
    add("flipped", {3, 2}, size, {3, 4, 13, 9}, 3, {3, 4}, {3, 2});
    add("enlarged", {2, 2}, {4, 6}, {1, 2, 12, 18}, 1, {1, 2}, {2, 2});
    add("as many as fit", {0, 0}, size, {-3, 25, 13, 9}, 0, {-3, 25}, {5, 6});
    add("so many columns", {1, 2}, size, {-3, 4, 13, 9}, 2, {-3, 4}, {5, 2});
    // An origin in the right or upper half: they begin as many images before it as one has pixels.
    add("as many, from the right", {0, 0}, small, {50, 30, 2, 2}, 0, {46, 30}, {32, 24});
    add("as many, from above", {0, 0}, small, {10, 20, 2, 2}, 0, {10, 16}, {32, 24});
    add("from far away", {1 << 20, 1 << 30}, size, {-1300000, -9000000, 13, 9}, 3, {0, 0}, {6, 7});
    add("too many", {1 << 30, 1 << 30}, size, {0, 0, 13, 9}, 0, {0, 0}, {5, 6});
}

void TestTextureDrawing::drawsTiles()
{
    QFETCH(QPoint, tiles);
    QFETCH(QSize, image);
    QFETCH(QRect, first);
    QFETCH(int, flip);
    QFETCH(QPoint, shown);
    QFETCH(QSize, drawn);
    const QImage colors = inColor(indices(image.width(), image.height()), palette(1));
    Texture texture(colors);
    s->canvas.draw = [&] {
        setAlphaBlending();
        s->canvas.glDrawImageTiled(tiles, {0, 0}, placed(first), &texture, nullptr, uchar(flip), 1,
                                   true);
    };
    QImage expected = ground();
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            const QPoint at = shown + QPoint(x * first.width(), y * first.height());
            draw(expected, colors, QRect(at, first.size()), Look{flip});
        }
    }
    QVERIFY(difference(painted(), expected) <= 2);
}

// The gap between two tiles is a part of the widget, and the place of a point is its place on the
// repeated image.
void TestTextureDrawing::spacesTiles()
{
    const QImage colors = inColor(indices(8, 8), std::vector<RGBA>(palette(1)));
    Texture texture(colors);
    QPoint tiles(3, 2);
    QPoint spacing(16, 12);  // a quarter each: steps of 0.5 and 1.5
    QMatrix4x4 matrix = placed({4, 2, 16, 16});
    s->canvas.draw = [&] {
        s->canvas.glDrawImageTiled(tiles, spacing, matrix, &texture, nullptr, 0, 1, false);
    };
    QImage expected = ground();
    for (int i = 0; i < tiles.x() * tiles.y(); ++i) {
        const QPoint begin(i % tiles.x() * 8, i / tiles.x() * 24);
        for (int y = begin.y(); y < begin.y() + 16; ++y) {
            for (int x = begin.x(); x < begin.x() + 16; ++x) {
                if (y + 2 < Size.height()) {
                    expected.setPixel(x + 4, y + 2, colors.pixel(x / 2 % 8, 7 - y / 2 % 8));
                }
            }
        }
    }
    {
        GlTest::CallCounter counter;
        QVERIFY(difference(painted(), expected.convertToFormat(QImage::Format_RGB32)) <= 1);
        QVERIFY(counter.calls().vertices.contains(12 * 6));
    }

    // More than can be kept in memory look as many do.
    for (int turn : {0, 30, 180}) {
        matrix.rotate(float(turn), 0, 0, 1);
        for (QPoint gap : {QPoint(16, 12), QPoint(-16, 60), QPoint(0, 24)}) {
            spacing = gap;
            tiles = QPoint(200, 200);
            const QImage many = painted();
            tiles = QPoint(1 << 30, std::numeric_limits<int>::max());
            QVERIFY(difference(painted(), many) <= 1);
        }
    }
    matrix.scale(0, 0);
    QCOMPARE(painted(), ground());
}

void TestTextureDrawing::drawsNothing_data()
{
    QTest::addColumn<std::function<void()>>("draw");
    const QMatrix4x4 matrix = placed({0, 0, 20, 20});
    const auto add = [](const char* name, std::function<void()> draw) {
        row(name, std::move(draw));
    };
    add("null", [=] {
        s->canvas.glDrawImage(matrix, nullptr, nullptr, 0, 1, true, 0);
        s->canvas.glDrawImageTiled({2, 2}, {1, 1}, matrix, nullptr, nullptr, 0, 1, true);
    });
    add("no name", [=] {
        Texture texture;
        s->canvas.glDrawImage(matrix, &texture, nullptr, 0, 1, true, 0);
        s->canvas.glDrawImageTiled({2, 2}, {0, 0}, matrix, &texture, nullptr, 0, 1, true);
    });
    add("a palette", [=] {
        Texture texture(palette(1).data());
        s->canvas.glDrawImage(matrix, &texture, &texture, 0, 1, true, 0);
    });
    add("deleted", [=] {
        Texture texture(indices(3, 3));
        texture.fromImage(QImage());
        s->canvas.glDrawImage(matrix, &texture, nullptr, 0, 1, true, 0);
        s->canvas.glDrawImageTiled({2, 2}, {1, 1}, matrix, &texture, nullptr, 0, 1, true);
    });
    add("no such shading", [=] {
        Texture texture(indices(3, 3));
        s->canvas.glDrawImage(matrix, &texture, nullptr, 0, 1, true, 4);
    });
    add("not attached", [=] {
        Texture texture(indices(3, 3));
        Canvas other;
        other.glBeginTextureDrawing();
        other.glSetBlend(true);
        other.glDrawImage(matrix, &texture, nullptr, 0, 1, true, 0);
        other.glDrawImageTiled({2, 2}, {1, 1}, matrix, &texture, nullptr, 0, 1, true);
        other.glEndTextureDrawing();
    });
    add("attached to what was never shown", [=] {
        Texture texture(indices(3, 3));
        RenderWidget hidden;
        Canvas other;
        hidden.setRenderer(&other);
        other.glDrawImage(matrix, &texture, nullptr, 0, 1, true, 0);
        other.glSetBlend(true);
        hidden.setCustomPixelShader(nullptr, nullptr);
        s->widget.makeCurrent();
    });
    add("transparent", [=] {
        Texture texture(indices(1, 1));
        Texture colors(palette(1).data());
        s->canvas.glDrawImage(matrix, &texture, &colors, 0, 1, true, 0);
    });
}

void TestTextureDrawing::drawsNothing()
{
    QFETCH(std::function<void()>, draw);
    s->canvas.draw = draw;
    QCOMPARE(painted(), ground());
}

// Against drawing each image in a run of its own, where all is set anew.
void TestTextureDrawing::repeatsNoState()
{
    std::vector<std::unique_ptr<Texture>> palettes;
    for (int i = 0; i < 3; ++i) {
        palettes.push_back(std::make_unique<Texture>(palette(i).data()));
    }
    for (quint32 seed = 1; seed <= 30; ++seed) {
        bool isOneRun = true;
        Canvas& canvas = s->canvas;
        canvas.draw = [&] {
            QRandomGenerator random(seed);
            std::vector<std::unique_ptr<Texture>> images;
            for (int i = 0; i < 3; ++i) {
                images.push_back(std::make_unique<Texture>(indices(5 + i, 7)));
                images.push_back(std::make_unique<Texture>(inColor(indices(9 - i, 4), palette(i))));
            }
            setAlphaBlending();
            for (int i = 0; i < 40; ++i) {
                if (!isOneRun) {
                    canvas.glEndTextureDrawing();
                    canvas.glBeginTextureDrawing();
                    setAlphaBlending();
                }
                const QRect rect(random.bounded(50), random.bounded(40), 10 + random.bounded(2), 9);
                const auto flip = uchar(random.bounded(4));
                const float opacity = float(1 + random.bounded(2)) / 2;
                const bool mask = random.bounded(2) == 1;
                const auto shading = uchar(random.bounded(2));
                Texture* const image = images[size_t(random.bounded(6))].get();
                Texture* const colors = palettes[size_t(random.bounded(3))].get();
                if (random.bounded(4) == 0) {
                    // A texture that is made in between, perhaps under a name that was bound.
                    image->fromImage(image->kind == Texture::IndexedKind
                                         ? indices(6, 6)
                                         : inColor(indices(6, 6), palette(1)));
                }
                if (random.bounded(5) == 0) {
                    const bool isIndexed = image->kind == Texture::IndexedKind;
                    canvas.glDrawImageTiled({2, 2}, {random.bounded(2), 5}, placed(rect), image,
                                            isIndexed ? colors : nullptr, flip, opacity, mask);
                } else {
                    canvas.glDrawImage(placed(rect), image, colors, flip, opacity, mask, shading);
                }
            }
        };
        isOneRun = false;
        const QImage expected = painted();
        isOneRun = true;
        QVERIFY(difference(expected, ground()) > 50);
        QVERIFY2(difference(painted(), expected) == 0, qPrintable(QString::number(seed)));
    }
}

void TestTextureDrawing::countsCalls()
{
    Texture first(indices(4, 4));
    Texture second(inColor(indices(4, 4), palette(1)));
    Texture colors(palette(1).data());
    Texture others(palette(2).data());
    GlTest::CallCounter counter;
    GlTest::Calls calls;
    s->canvas.draw = [&] {
        counter.restart();
        setAlphaBlending();
        for (int i = 0; i < 50; ++i) {
            setAlphaBlending();
            s->canvas.glDrawImage(placed({i, 0, 4, 4}), &first, i < 25 ? &colors : &others, 0, 1,
                                  true, 0);
        }
        for (int i = 0; i < 50; ++i) {
            s->canvas.glDrawImage(placed({i, 8, 4, 4}), &second, nullptr, uchar(i % 4), 1, true, 0);
        }
        calls = counter.calls();
    };
    painted();
    QCOMPARE(calls.redundant, 0);
    QCOMPARE(calls.draws(), 100);
    QCOMPARE(calls.programs, 2);
    QCOMPARE(calls.images, 2);
    QCOMPARE(calls.palettes, 2);
    QCOMPARE(calls.blending, 3);
    QCOMPARE(calls.arrays, 4);
    QCOMPARE(calls.uniforms, 2 + 1 + 2 * 2 + 100);
    QVERIFY(calls.uploads.isEmpty());
}

// QPainter blends in its own way before and behind the images, in every frame.
void TestTextureDrawing::isLeftAsPainterExpects()
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(qRgba(250, 100, 10, 128));
    Texture texture(image);
    Texture colors(palette(1).data());
    s->canvas.underneath = [](QPainter& painter) {
        painter.fillRect(QRect(0, 0, 64, 24), QColor(0, 0, 255, 128));
    };
    s->canvas.draw = [&] {
        setAlphaBlending();
        s->canvas.glDrawImage(placed({0, 0, 64, 48}), &texture, &colors, 0, 0.5F, true, 0);
        s->canvas.glEndTextureDrawing();
        const std::pair<GLenum, int> states[] = {{GL_CURRENT_PROGRAM, 0},
                                                 {GL_ACTIVE_TEXTURE, GL_TEXTURE1},
                                                 {GL_TEXTURE_BINDING_2D, 0},
                                                 {GL_BLEND, 0},
                                                 {GL_BLEND_EQUATION, GL_FUNC_ADD},
                                                 {GL_BLEND_SRC_RGB, GL_SRC_ALPHA},
                                                 {GL_BLEND_DST_RGB, GL_ONE_MINUS_SRC_ALPHA}};
        for (const auto& [name, expected] : states) {
            GLint value = -1;
            s->canvas.glGetIntegerv(name, &value);
            QCOMPARE(value, expected);
        }
        for (GLuint array = 0; array < 4; ++array) {
            GLint enabled = -1;
            s->canvas.glGetVertexAttribiv(array, GL_VERTEX_ATTRIB_ARRAY_ENABLED, &enabled);
            QCOMPARE(enabled, 0);
        }
    };
    QImage expected = ground();
    QPainter painter(&expected);
    painter.fillRect(QRect(0, 0, 64, 24), QColor(0, 0, 255, 128));
    painter.end();
    draw(expected, image, QRect(0, 0, 64, 48), Look{0, 0.5F});
    for (int frame = 0; frame < 3; ++frame) {
        QVERIFY(difference(painted(), expected) <= 2);
    }
}

ZORV_GL_TEST_MAIN(TestTextureDrawing)
#include "tst_texturedrawing.moc"
