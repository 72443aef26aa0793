#include "graphics/stage/graphicsrenderer.h"

#include "graphics/renderwidget.h"
#include "support/gltest.h"
#include "support/stagedata.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zorv;

namespace {

const QPoint Origin(32, 32);
const QRgb Ground = qRgb(0, 0, 0);
const QRgb Orange = qRgb(200, 100, 50);

/// Of 8 by 8. `Format_Indexed8` takes an index, others a colour.
QImage filled(QImage::Format format, uint pixel)
{
    QImage image(8, 8, format);
    image.setColorCount(format == QImage::Format_Indexed8 ? 256 : 0);
    image.fill(pixel);
    return image;
}

/// Whose colour 1 is that one; all others are clear.
std::unique_ptr<StageData::Palette> palette(const RGBA& color)
{
    RGBA colors[256] = {};
    colors[1] = color;
    return std::make_unique<StageData::Palette>(colors);
}

/// A stage of 64 by 64 with its origin in the middle, and sprites to put on it.
struct Scene
{
    Scene()
    {
        stage.setOrigin(Origin);
        stage.setZoomTable(0);
        stage.zoomActual();
        stage.setPriority(false, false);
        stage.setVisibility(false, false, false, true, true, false, false);
        stage.setBackground(Ground, Ground, GraphicsRenderer::GradientBackground, {}, {}, {});
        stage.setSprites(&provider);
        widget.setFixedSize(64, 64);
        widget.setRenderer(&stage);
        widget.show();
    }
    ~Scene() { widget.setRenderer(nullptr); }

    void add(Sprite& sprite, QPoint position, QPointF scale = {1, 1}, int layer = 0)
    {
        provider.rows.append({&sprite, {position, 1, 0, QSize(8, 8), scale, 0, 0, layer}});
        emit provider.changed();
    }

    /// Whether it is seen there, from the origin, but for what blending rounds.
    bool shows(QRgb color, QPoint place)
    {
        const QRgb shown = widget.grabFramebuffer().pixel(Origin + place);
        return isNear(color, shown);
    }

    static bool isNear(QRgb a, QRgb b)
    {
        return std::abs(qRed(a) - qRed(b)) <= 1 && std::abs(qGreen(a) - qGreen(b)) <= 1 &&
               std::abs(qBlue(a) - qBlue(b)) <= 1;
    }

    std::unique_ptr<StageData::Palette> red = palette({255, 0, 0, 255});
    std::unique_ptr<StageData::Palette> brown = palette({100, 50, 25, 255});
    StageData::Sprite redSprite{filled(QImage::Format_Indexed8, 1), red.get()};
    StageData::Sprite brownSprite{filled(QImage::Format_Indexed8, 1), brown.get()};
    StageData::Sprite clear{filled(QImage::Format_Indexed8, 0), red.get()};
    StageData::Sprite orange{filled(QImage::Format_ARGB32, Orange)};
    StageData::Sprite broken;
    StageData::Provider provider;
    GraphicsRenderer stage;
    RenderWidget widget;
};

}  // namespace

class TestStageDrawing : public QObject
{
    Q_OBJECT

private slots:
    void spritesInTheirOrder();
    void onionSkins();
    void skinsStandAsSpritesDo();
    void skinsHaveColors();
    void paintersAgree();
};

void TestStageDrawing::spritesInTheirOrder()
{
    Scene scene;
    scene.add(scene.redSprite, {0, 0});
    scene.add(scene.brownSprite, {2, 0});
    scene.add(scene.clear, {0, 0});
    scene.add(scene.broken, {0, 0});
    scene.provider.rows.append({nullptr, {}});
    scene.add(scene.orange, {0, 0}, {0, 1});
    scene.add(scene.orange, {0, 0}, {1, 1}, 1);  // of another layer
    scene.add(scene.redSprite, {4, 0});
    scene.stage.setGuideLines({5, 20});
    scene.stage.setVisibility(false, false, false, true, true, false, true);
    QVERIFY(scene.shows(qRgb(255, 0, 0), {1, 1}));
    QVERIFY(scene.shows(qRgb(100, 50, 25), {3, 1}));
    QVERIFY(scene.shows(qRgb(255, 0, 0), {6, 1}));
    QVERIFY(scene.shows(qRgb(0, 255, 255), {5, 1}));
    scene.stage.setPriority(true, false);
    QVERIFY(scene.shows(qRgb(255, 0, 0), {5, 1}));
    QVERIFY(scene.shows(qRgb(0, 255, 255), {5, 9}));
}

void TestStageDrawing::onionSkins()
{
    Scene scene;
    scene.add(scene.redSprite, {4, 4});
    const auto shows = [&scene](const Sprite& sprite, GraphicsRenderer::OnionEffect effect,
                                float opacity, QRgb color) {
        scene.stage.setOnionSkinSprite(&sprite, {2, 2});
        scene.stage.setOnionSkin(true, effect, opacity);
        return scene.shows(color, {-2, -2}) && scene.shows(color, {3, 3}) &&
               scene.shows(Ground, {-3, -2}) && scene.shows(qRgb(255, 0, 0), {4, 4});
    };
    QVERIFY(shows(scene.orange, GraphicsRenderer::GrayscaleEffect, 1, qRgb(200, 200, 200)));
    QVERIFY(shows(scene.orange, GraphicsRenderer::LighterEffect, 1, qRgb(255, 228, 178)));
    QVERIFY(shows(scene.orange, GraphicsRenderer::DarkerEffect, 0.5F, qRgb(36, 0, 0)));
    QVERIFY(shows(scene.brownSprite, GraphicsRenderer::NoEffect, 0.5F, qRgb(50, 25, 13)));
    QVERIFY(shows(scene.broken, GraphicsRenderer::NoEffect, 1, Ground));
}

// At any pose, zoom and place of the cross, pixel by pixel.
void TestStageDrawing::skinsStandAsSpritesDo()
{
    QRandomGenerator random(18);
    const auto point = [&random](int most) {
        return QPoint(random.bounded(-most, most), random.bounded(-most, most));
    };
    int seen = 0;  // a sprite far zoomed may stand outside
    Scene scene;
    QImage picture(8, 8, QImage::Format_ARGB32);
    for (int i = 0; i < 64; ++i) {
        picture.setPixel(i % 8, i / 8, i % 5 == 0 ? 0 : qRgb(60 + i * 3, 255 - i * 4, i));
    }
    StageData::Sprite sprite(picture);
    scene.stage.setOnionSkin(true, GraphicsRenderer::NoEffect, 1);
    for (int round = 0; round < 60; ++round) {
        const double scales[] = {1, 2, -1, 0.5, -2.5};
        OnionSkin skin;
        skin.sprite = &sprite;
        skin.position = point(8);
        skin.size = picture.size();
        skin.scale = {scales[random.bounded(5)], scales[random.bounded(5)]};
        skin.flip = uchar(random.bounded(4));
        skin.rotation = random.bounded(2) ? float(random.bounded(360)) : 0;
        skin.axis = point(6);
        scene.stage.setZoomLevel(uchar(random.bounded(12)));
        scene.stage.setItemPosition(GraphicsRenderer::MainCross, point(5), 0);
        // The sprite hangs on a cross that stands at the axis.
        scene.stage.setItemPositionMode(GraphicsRenderer::SecondaryCross, 2, 0, 0);
        scene.stage.setItemPosition(GraphicsRenderer::SecondaryCross, skin.axis, 0);
        const QVector<QVariant> pose{skin.position, 2, 1, skin.size, skin.scale, int(skin.flip),
                                     skin.rotation, 0};
        scene.provider.rows = {{&sprite, pose}};
        emit scene.provider.changed();
        scene.stage.setOnionSkins({});
        const QImage expected = scene.widget.grabFramebuffer();
        scene.provider.rows.clear();
        emit scene.provider.changed();
        scene.stage.setOnionSkins({skin});
        QCOMPARE(scene.widget.grabFramebuffer(), expected);
        scene.stage.setOnionSkins({});
        seen += scene.widget.grabFramebuffer() != expected;
    }
    QVERIFY(seen > 30);
}

// Bright stays bright, clear stays clear, both kinds of images are tinted alike; the last lies on
// top, and the first shows through.
void TestStageDrawing::skinsHaveColors()
{
    Scene scene;
    const auto skin = [](const Sprite& sprite, int x, float opacity, const QColor& color) {
        OnionSkin result;
        result.sprite = &sprite;
        result.position = {x, 0};
        result.size = sprite.size();
        result.opacity = opacity;
        result.color = color;
        return result;
    };
    const std::unique_ptr<StageData::Palette> same = palette({200, 100, 50, 255});
    const StageData::Sprite indexed(filled(QImage::Format_Indexed8, 1), same.get());
    const QColor blue(0, 100, 250);
    // 0.4 times the brightness of 124 and 0.6 times the colour.
    const QRgb tinted = qRgb(50, 110, 200);
    scene.stage.setOnionSkins({skin(scene.orange, 0, 1, blue),
                               skin(indexed, 8, 1, blue),
                               skin(scene.clear, 0, 1, blue),
                               skin(scene.broken, 0, 1, blue),
                               skin(scene.orange, 16, 0.5F, blue),
                               skin(scene.orange, 4, 0.5F, {}),
                               {}});
    QVERIFY(scene.shows(Ground, {2, 2}));
    scene.stage.setOnionSkin(true, GraphicsRenderer::GrayscaleEffect, 1);
    QVERIFY(scene.shows(tinted, {2, 2}));
    QVERIFY(scene.shows(tinted, {14, 2}));
    QVERIFY(scene.shows(qRgb(25, 55, 100), {18, 2}));
    QVERIFY(scene.shows(qRgb(125, 155, 200), {6, 2}));
    scene.stage.setOnionSkin(true, GraphicsRenderer::GrayscaleEffect, 0.5F);
    QVERIFY(scene.shows(qRgb(25, 55, 100), {2, 2}));
    // What comes behind has its own colours.
    scene.add(scene.orange, {0, 0});
    QVERIFY(scene.shows(Orange, {2, 2}));
}

void TestStageDrawing::paintersAgree()
{
    for (const bool boxesAbove : {false, true}) {
        Scene scene;
        StageData::Boxes lists[] = {StageData::Boxes(ContactBoxCode::Attack),
                                    StageData::Boxes(ContactBoxCode::Collision)};
        for (int i = 0; i < 40; ++i) {
            lists[i % 2].add(QRect(i * 7 % 40 - 20, i * 13 % 40 - 20, 1 + i % 9, 1 + i % 7));
        }
        lists[1].add(QRect(0, 0, 9, 9));
        lists[0].add(QRect(0, 0, 9, 9));
        scene.stage.setupContactBoxes(Qt::red, Qt::blue, 1);
        scene.stage.setGuideLines({20, 20});
        scene.stage.setContactBoxes(ContactBoxCode::Attack, &lists[0]);
        scene.stage.setContactBoxes(ContactBoxCode::Collision, &lists[1]);
        scene.stage.setVisibility(true, true, true, true, true, false, true);
        scene.stage.setItemPosition(GraphicsRenderer::ExtraCross, {8, -9}, 0);
        scene.stage.setPriority(false, boxesAbove);
        for (int level = 0; level < 12; level += 2) {
            scene.stage.setZoomLevel(uchar(level));
            const QImage byGl = scene.widget.grabFramebuffer();
            QCOMPARE(byGl.pixel(Origin) == qRgb(255, 0, 0), boxesAbove);  // or the main cross
            QImage byRaster(byGl.size(), QImage::Format_RGB32);
            QPainter painter(&byRaster);
            scene.stage.render(painter);
            painter.end();
            for (int i = 0; i < 64 * 64; ++i) {
                QVERIFY(Scene::isNear(byGl.pixel(i % 64, i / 64), byRaster.pixel(i % 64, i / 64)));
            }
        }
    }
}

ZORV_GL_TEST_MAIN(TestStageDrawing)

#include "tst_stagedrawing.moc"
