#include "graphics/stage/graphicsrenderer.h"

#include "graphics/renderwidget.h"
#include "support/gltest.h"
#include "support/stagedata.h"

#include <QPainter>
#include <QtTest>

#include <functional>

using namespace Zorv;

namespace {

const QRgb Ground = qRgb(0, 0, 0);
const QPoint Origin(32, 32);

/// Four quarters of 4 by 4 pixels: colour 1 and 2 above, 3 and 0 below.
QImage quarters()
{
    QImage image(8, 8, QImage::Format_Indexed8);
    image.setColorCount(256);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            image.scanLine(y)[x] = uchar(y < 4 ? 1 + x / 4 : x < 4 ? 3 : 0);
        }
    }
    return image;
}

/// Colour 0 is clear, 1 to 3 are `first`, green and blue.
std::unique_ptr<StageData::Palette> palette(QRgb first)
{
    RGBA colors[256] = {};
    const QRgb used[] = {first, qRgb(0, 255, 0), qRgb(0, 0, 255)};
    for (int i = 0; i < 3; ++i) {
        colors[i + 1] = {uchar(qRed(used[i])), uchar(qGreen(used[i])), uchar(qBlue(used[i])), 255};
    }
    return std::make_unique<StageData::Palette>(colors);
}

QImage filled(QSize size, QRgb color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// A stage of 64 by 64 with its origin in the middle, and sprites to put on it.
struct Scene
{
    Scene()
    {
        GraphicsRenderer& s = stage;
        s.setOrigin(Origin);
        s.setZoomTable(0);
        s.zoomActual();
        s.setPriority(false, false);
        s.setVisibility(false, false, false, true, true, false, false);
        s.setBackground(Ground, Ground, GraphicsRenderer::GradientBackground, {}, {}, {});
        s.setSprites(&provider);
        widget.setFixedSize(64, 64);
        widget.setRenderer(&stage);
        widget.show();
    }
    ~Scene() { widget.setRenderer(nullptr); }

    void add(Sprite& sprite, QPoint position, QPointF scale = {1, 1}, int layer = 0)
    {
        provider.rows.append({&sprite, {position, 1, 0, sprite.size(), scale, 0, 0, layer}});
        emit provider.changed();
    }

    QRgb at(int x, int y)
    {
        return (shown.isNull() ? shown = widget.grabFramebuffer() : shown)
            .pixel(Origin + QPoint(x, y));
    }

    std::unique_ptr<StageData::Palette> red = palette(qRgb(255, 0, 0));
    std::unique_ptr<StageData::Palette> gray = palette(qRgb(100, 50, 25));
    StageData::Sprite indexed{quarters(), red.get()};
    StageData::Sprite other{quarters(), gray.get()};
    StageData::Sprite solid{filled({8, 8}, qRgb(200, 100, 50))};
    StageData::Sprite half{filled({8, 8}, qRgba(255, 255, 255, 128))};
    StageData::Sprite broken;
    StageData::Provider provider;
    GraphicsRenderer stage;
    RenderWidget widget;
    QImage shown;
};

/// Where which colour is to be seen, from the origin.
using Probes = QVector<QPair<QPoint, QRgb>>;

const QRgb Red = qRgb(255, 0, 0);
const QRgb Green = qRgb(0, 255, 0);
const QRgb Blue = qRgb(0, 0, 255);

struct Case
{
    const char* name;
    std::function<void(Scene&)> build;
    Probes probes;
};

const QVector<Case>& cases()
{
    static const QVector<Case> all = {
        {"last on top, of its own palette",
         [](Scene& s) {
             s.add(s.indexed, {0, 0});
             s.add(s.other, {0, 0});
             s.add(s.indexed, {4, 4});
         },
         {{{0, 0}, qRgb(100, 50, 25)}, {{4, 4}, Red}}},
        {"true colour",
         [](Scene& s) {
             s.add(s.solid, {0, 0});
         },
         {{{7, 7}, qRgb(200, 100, 50)}}},
        {"blended",
         [](Scene& s) {
             s.add(s.indexed, {0, 0});
             s.add(s.half, {0, 0});
         },
         {{{0, 0}, qRgb(255, 128, 128)}, {{7, 7}, qRgb(128, 128, 128)}}},
        {"what cannot be drawn is left out",
         [](Scene& s) {
             s.add(s.broken, {0, 0});
             s.provider.rows.append({nullptr, {}});
             s.add(s.indexed, {0, 0}, {0, 1});
             s.add(s.indexed, {0, 0}, {1, 1}, 1);  // of another layer
             s.add(s.solid, {8, 0});
         },
         {{{0, 0}, Ground}, {{8, 0}, qRgb(200, 100, 50)}}},
        {"onion skin below, gray",
         [](Scene& s) {
             s.add(s.indexed, {4, 0});
             s.stage.setOnionSkinSprite(&s.solid, {0, 0});
             s.stage.setOnionSkin(true, GraphicsRenderer::GrayscaleEffect, 1);
         },
         {{{0, 0}, qRgb(200, 200, 200)}, {{4, 0}, Red}}},
        {"onion skin lighter",
         [](Scene& s) {
             s.stage.setOnionSkinSprite(&s.solid, {4, 4});
             s.stage.setOnionSkin(true, GraphicsRenderer::LighterEffect, 1);
         },
         {{{-4, -4}, qRgb(255, 228, 178)}, {{3, 3}, qRgb(255, 228, 178)}, {{4, 4}, Ground}}},
        {"onion skin darker, half",
         [](Scene& s) {
             s.stage.setOnionSkinSprite(&s.solid, {0, 0});
             s.stage.setOnionSkin(true, GraphicsRenderer::DarkerEffect, 0.5F);
         },
         {{{0, 0}, qRgb(36, 0, 0)}}},
        {"onion skin plain, with a palette",
         [](Scene& s) {
             s.stage.setOnionSkinSprite(&s.other, {0, 0});
             s.stage.setOnionSkin(true, GraphicsRenderer::NoEffect, 0.5F);
         },
         {{{0, 0}, qRgb(50, 25, 13)}, {{7, 7}, Ground}}},
        {"guides over sprites",
         [](Scene& s) {
             s.add(s.solid, {0, 0});
             s.stage.setGuideLines({2, 20});
             s.stage.setVisibility(false, false, false, true, true, false, true);
         },
         {{{2, 2}, qRgb(0, 255, 255)}, {{2, 30}, qRgb(0, 255, 255)}}},
        {"sprites over guides",
         [](Scene& s) {
             s.add(s.solid, {0, 0});
             s.stage.setGuideLines({2, 20});
             s.stage.setPriority(true, false);
             s.stage.setVisibility(false, false, false, true, true, false, true);
         },
         {{{2, 2}, qRgb(200, 100, 50)}, {{2, 30}, qRgb(0, 255, 255)}}},
    };
    return all;
}

bool isNear(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) <= 1 && std::abs(qGreen(a) - qGreen(b)) <= 1 &&
           std::abs(qBlue(a) - qBlue(b)) <= 1;
}

}  // namespace

class tst_StageDrawing : public QObject
{
    Q_OBJECT

private slots:
    void pixels_data();
    void pixels();
    void paintersAgree();
    void newColoursUploadNoImage();
};

void tst_StageDrawing::pixels_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < cases().size(); ++i) {
        QTest::newRow(cases().at(i).name) << i;
    }
}

void tst_StageDrawing::pixels()
{
    QFETCH(int, number);
    Scene scene;
    cases().at(number).build(scene);
    for (const auto& [point, color] : cases().at(number).probes) {
        const QRgb shown = scene.at(point.x(), point.y());
        QVERIFY2(isNear(shown, color), qPrintable(QStringLiteral("(%1, %2) is %3, not %4")
                                                      .arg(point.x())
                                                      .arg(point.y())
                                                      .arg(shown, 0, 16)
                                                      .arg(color, 0, 16)));
    }
}

void tst_StageDrawing::paintersAgree()
{
    for (const bool boxesAbove : {false, true}) {
        Scene scene;
        StageData::Boxes lists[] = {StageData::Boxes(ContactBoxCode::Attack),
                                    StageData::Boxes(ContactBoxCode::Collision)};
        for (int i = 0; i < 40; ++i) {
            lists[i % 2].add(QRect(i * 7 % 40 - 20, i * 13 % 40 - 20, 1 + i % 9, 1 + i % 7));
        }
        scene.stage.setupContactBoxes(Qt::red, Qt::blue, 1);
        scene.stage.setContactBoxes(ContactBoxCode::Attack, &lists[0]);
        scene.stage.setContactBoxes(ContactBoxCode::Collision, &lists[1]);
        scene.stage.setVisibility(true, true, true, true, true, false, true);
        scene.stage.setItemPosition(GraphicsRenderer::ExtraCross, {8, -9}, 0);
        scene.stage.setPriority(false, boxesAbove);
        for (int level = 0; level < 12; level += 2) {
            scene.stage.setZoomLevel(uchar(level));
            QImage expected(scene.widget.size(), QImage::Format_RGB32);
            QPainter painter(&expected);
            scene.stage.render(painter);
            painter.end();
            scene.shown = QImage();
            for (int y = -32; y < 32; ++y) {
                for (int x = -32; x < 32; ++x) {
                    QVERIFY(isNear(scene.at(x, y), expected.pixel(Origin + QPoint(x, y))));
                }
            }
        }
    }
}

void tst_StageDrawing::newColoursUploadNoImage()
{
    Scene scene;
    for (int i = 0; i < 50; ++i) {
        scene.add(i % 2 == 0 ? scene.indexed : scene.solid, {i % 7, i % 5});
    }
    scene.widget.grabFramebuffer();
    GlTest::CallCounter counter;
    RGBA colors[256] = {};
    colors[1] = {1, 2, 3, 255};
    scene.red->setColors(colors, 0);
    scene.widget.grabFramebuffer();
    QCOMPARE(counter.calls().uploads, QVector<QSize>{QSize(256, 1)});
}

ZORV_GL_TEST_MAIN(tst_StageDrawing)

#include "tst_stagedrawing.moc"
