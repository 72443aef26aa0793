#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/rounding_p.h"
#include "graphics/stage/rulerticks_p.h"
#include "scenemodel.h"
#include "support/stagedata.h"
#include "support/testtable.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261121;
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

struct Drawn
{
    QPoint base;
    QPoint offset;
    QSize size;
};

/// A stage of which the state is seen, and what it would draw by GL. Begins with what all stages
/// share as it is at the start, and shows boxes alone.
class Stage : public GraphicsRenderer
{
public:
    Stage()
    {
        setOrigin({});
        setPriority(false, false);
        setZoomMode(ZoomAboutOrigin);
        setZoomTable(0);
        setupContactBoxes(Qt::red, Qt::blue, 0);
        setBackground(Qt::black, Qt::black, GradientBackground, {}, {}, {});
        setVisibility(false, false, false, true, true, false, false);
        for (StageData::Boxes* list : {&attack, &collision}) {
            list->add(QRect(0, 0, 20, 20));
        }
    }

    GraphicsRendererPrivate& scene() { return GraphicsRendererPrivate::of(*this); }

    void showBoxes()
    {
        setContactBoxes(ContactBoxCode::Attack, &attack);
        setContactBoxes(ContactBoxCode::Collision, &collision);
    }

    QImage picture(QSize size)
    {
        sizeChanged(size.width(), size.height());
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::green);
        drawn.clear();
        QPainter painter(&image);
        render(painter);
        return image;
    }

    StageData::Boxes attack{ContactBoxCode::Attack};
    StageData::Boxes collision{ContactBoxCode::Collision};
    std::map<unsigned, Drawn> drawn;
    Drawn onionSkin;

protected:
    void renderSprite(QPoint base, QPoint offset, QSize size, float, unsigned char, Sprite*,
                      unsigned index) override
    {
        drawn[index] = {base, offset, size};
    }
    void renderOnionSkinSprite(const Sprite*, QPoint base, QPoint offset, QSize size, float,
                               OnionEffect) override
    {
        onionSkin = {base, offset, size};
    }
};

QPoint randomPoint(QRandomGenerator& random, int reach)
{
    return {random.bounded(-reach, reach), random.bounded(-reach, reach)};
}

/// Boxes of a list as they would be drawn, one pixel after the other.
void drawPlainly(QImage& image, const QVector<QRect>& boxes, QRgb color, QPoint anchor, float zoom)
{
    const int thickness = std::max(qRound(zoom), 1);
    for (const QRect& box : boxes) {
        const int left = qRound(box.x() * double(zoom)) + anchor.x();
        const int top = qRound(box.y() * double(zoom)) + anchor.y();
        const int right = left - 1 + qRound(box.width() * double(zoom));
        const int bottom = top - 1 + qRound(box.height() * double(zoom));
        for (int y = std::max(top, 0); y <= std::min(bottom, image.height() - 1); ++y) {
            for (int x = std::max(left, 0); x <= std::min(right, image.width() - 1); ++x) {
                if (x < left + thickness || x > right - thickness || y < top + thickness ||
                    y > bottom - thickness) {
                    image.setPixel(x, y, color);
                }
            }
        }
    }
}

}  // namespace

class TestStageScene : public QObject
{
    Q_OBJECT

private slots:
    void placesFollowParents();
    void extremesStayBounded();
    void zoomLevels_data();
    void zoomLevels();
    void absoluteThingsFollowTheZoom();
    void providerIsFollowed();
    void selectionOutlivesEqualBoxes();
    void onionSkinIsAboutTheMainCross();
    void groundFits();
    void boxesAreDrawn();
    void insideShinesThrough();
    void guidesAreDrawn();
    void ticksTellModelUnits();
    void rulersAreDrawn();
    void pictureStandsAtTheOrigin();
    void picturesOfTheLibrary();
    void crossesMarkTheirPoint();
};

void TestStageScene::placesFollowParents()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    for (int round = 0; round < 2000; ++round) {
        Scene model = randomScene(random);
        StageData::Provider provider;
        for (const PlainItem& item : model.sprites) {
            provider.rows.append(item.row());
        }
        Stage stage;
        stage.setZoomTable(model.table);
        stage.setZoomLevel(model.level);
        stage.setOrigin(model.origin);
        stage.setSprites(&provider);
        model.zoom = stage.zoom();
        for (int i = 0; i < 3; ++i) {
            const auto type = GraphicsRenderer::ItemType(i);
            const StageCross& cross = model.crosses[i];
            stage.setItemPosition(type, cross.position, 0);
            stage.setItemPositionMode(type, uchar(cross.mode), unsigned(cross.parent), 0);
        }
        stage.picture({8, 8});
        QCOMPARE(stage.drawn.size(), size_t(model.sprites.size()));
        for (const auto& [number, drawn] : stage.drawn) {
            const int index = int(number);
            const PlainItem& item = model.sprites.at(index);
            QCOMPARE(drawn.base, model.anchor(item.mode, item.parent, {3 + index}));
            QCOMPARE(drawn.base + drawn.offset, model.place(3 + index, {}));
            QCOMPARE(drawn.size.height(), model.scaled(int(item.size.height() * item.scale.y())));
        }
    }
}

void TestStageScene::extremesStayBounded()
{
    QCOMPARE(roundedInt(NotANumber), 0);
    QCOMPARE(roundedInt(2147483648.0), Most);
    QCOMPARE(roundedInt(-HUGE_VALF), Least);
    QCOMPARE(truncatedInt(-2.5), -2);

    Stage stage;
    StageData::Provider provider;
    for (const double scale : {NotANumber, HUGE_VAL, -HUGE_VAL, 1e300, -1e300, 1.0}) {
        for (const int mode : {0, 1, 2, 3}) {
            const QPoint place = mode % 2 == 0 ? QPoint(Most, Least) : QPoint(Least, Most);
            provider.rows.append(
                {nullptr,
                 {place, mode, mode, QSize(Most, Least), QPointF(scale, scale), 3, scale, 0}});
        }
    }
    stage.setSprites(&provider);
    stage.attack.add(QRect(QPoint(Least, Least), QPoint(Most, Most)));
    stage.attack.add(QRect(QPoint(Most, Most), QPoint(Most, Most)));
    stage.showBoxes();
    stage.setVisibility(true, true, true, true, true, true, true);
    stage.setZoomTable(1);
    stage.setItemPositionMode(GraphicsRenderer::SecondaryCross, 12, 0, 0);  // absolute
    stage.scene().hasSelection = true;
    for (const QPoint& origin : {QPoint(0, 0), QPoint(Most, Least), QPoint(Least, Most)}) {
        stage.setOrigin(origin);
        stage.setGuideLines(origin);
        stage.setItemPosition(GraphicsRenderer::SecondaryCross, origin, 0);
        for (int level = 0; level < 4 * ZoomLevels; ++level) {
            stage.setZoomLevel(uchar(level % ZoomLevels));
            const QSize size(level % 4 < 2 ? 1 : 40, level % 4 % 2 == 0 ? 1 : 40);
            const QImage image = stage.picture(size);
            QVERIFY(image.pixel(size.width() - 1, size.height() - 1) != qRgb(0, 255, 0));
            for (const auto& [index, drawn] : stage.drawn) {
                QVERIFY(std::abs(drawn.base.x()) <= StageLimit);
                QVERIFY(std::abs(drawn.offset.y()) <= StageLimit);
                QVERIFY(std::isfinite(stage.scene().spriteItems.at(int(index)).rotation));
            }
        }
    }
    for (int i = 0; i < 3; ++i) {
        QVERIFY(stage.scene().contactBoxes[0].items.at(i).rect() == stage.attack.at(i)->rect());
    }
}

void TestStageScene::zoomLevels_data()
{
    // `steps`: + - 1, w up and W down by the wheel
    columns<int, int, QString, int, float>("table", "start", "steps", "level", "zoom");
    QTest::newRow("lowest by number") << 0 << 255 << "" << 0 << 0.25F;
    QTest::newRow("too high") << 1 << 12 << "" << 11 << 10.0F;
    QTest::newRow("held above") << 0 << 11 << "+" << 11 << 4.0F;
    QTest::newRow("held below") << 1 << 0 << "-" << 0 << 0.25F;
    QTest::newRow("up") << 0 << 3 << "++" << 5 << 2.0F;
    QTest::newRow("actual") << 0 << 9 << "1" << 3 << 1.0F;
    QTest::newRow("actual, whole factors") << 1 << 9 << "1" << 2 << 1.0F;
    QTest::newRow("wheel ends earlier") << 0 << 8 << "www" << 9 << 3.0F;
    QTest::newRow("wheel comes back") << 0 << 11 << "w" << 9 << 3.0F;
    QTest::newRow("wheel down") << 1 << 1 << "WWW" << 0 << 0.25F;
}

void TestStageScene::zoomLevels()
{
    const auto [table, start, steps] = fetched<int, int, QString>();
    Stage stage;
    stage.setZoomTable(static_cast<unsigned char>(table));
    stage.setZoomLevel(static_cast<unsigned char>(start));
    for (const QChar step : steps) {
        switch (step.toLatin1()) {
        case '+':
            stage.addZoom();
            break;
        case '-':
            stage.subZoom();
            break;
        case '1':
            stage.zoomActual();
            break;
        default:
            stage.mouseWheel(step == 'w' ? 120 + 119 : -120);
        }
    }
    QTEST(int(stage.zoomLevel()), "level");
    QTEST(stage.zoom(), "zoom");
}

void TestStageScene::absoluteThingsFollowTheZoom()
{
    for (const bool isAboutOrigin : {false, true}) {
        Stage stage;
        stage.sizeChanged(201, 101);
        stage.setZoomMode(isAboutOrigin ? GraphicsRenderer::ZoomAboutOrigin
                                        : GraphicsRenderer::ZoomAboutCenter);
        stage.setZoomTable(1);
        stage.zoomActual();
        stage.setOrigin({30, 70});
        stage.showBoxes();
        StageData::Provider provider;
        provider.rows.append({nullptr, {QPoint(130, 20)}});
        stage.setSprites(&provider);
        for (const auto type : {GraphicsRenderer::ContactBoxesType, GraphicsRenderer::MainCross}) {
            stage.setItemPositionMode(type, 0, 0, 0);
            stage.setItemPosition(type, {130, 20}, 0);
        }
        stage.setItemPosition(GraphicsRenderer::ExtraCross, {130, 20}, 0);

        const QPoint middle = isAboutOrigin ? QPoint(30, 70) : QPoint(100, 50);
        for (const int level : {5, 0, 11, 3, 2}) {
            stage.setZoomLevel(uchar(level));
            const auto zoom = double(stage.zoom());
            const QPointF expected = middle + QPointF(QPoint(130, 20) - middle) * zoom;
            const QPoint cross = stage.itemPosition(GraphicsRenderer::MainCross, 0);
            // It drifts by what was rounded away at a quarter, no more.
            QVERIFY((cross - expected).manhattanLength() <= 4 * std::max(zoom, 1.0));
            QCOMPARE(stage.itemPosition(GraphicsRenderer::SpriteType, 0), cross);
            QCOMPARE(stage.itemPosition(GraphicsRenderer::ExtraCross, 0), QPoint(130, 20));
            QCOMPARE(stage.origin(), QPoint(30, 70));
            const ContactItem& box = stage.scene().contactBoxes[1].items.at(0);
            QVERIFY(std::abs(box.x - middle.x() * (1 - zoom)) < 1e-4);
            QVERIFY(std::abs(box.y - middle.y() * (1 - zoom)) < 1e-4);
            QCOMPARE(box.width, 20.0);
        }
    }
}

void TestStageScene::providerIsFollowed()
{
    StageData::Sprite sprites[2];
    auto provider = std::make_unique<StageData::Provider>();
    provider->rows = {{&sprites[0], {QPoint(3, 4), 9, 1, QSize(5, 6), QPointF(2, 3), 2, 45.0, 0}},
                      {&sprites[1], {}},
                      {&sprites[0], {}}};
    Stage stage;
    stage.setSprites(provider.get());
    QCOMPARE(stage.indexOfItem(GraphicsRenderer::SpriteType, &sprites[0]), 0);
    QCOMPARE(stage.indexOfItem(GraphicsRenderer::SpriteType, &sprites[1]), 1);
    const SpriteItem item = stage.scene().spriteItems.at(0);
    QCOMPARE(QPoint(item.mode, item.parent), QPoint(9, 1));
    QCOMPARE(item.size, QSize(5, 6));
    QCOMPARE(item.scale, QPointF(2, 3));
    QCOMPARE(QPointF(item.flip, double(item.rotation)), QPointF(2, 45));

    provider->rows[0].values[0] = QPoint(8, 8);
    provider->rows[1].values = {QPoint(9, 9)};
    emit provider->changedAt(1);
    QCOMPARE(stage.itemPosition(GraphicsRenderer::SpriteType, 0), QPoint(3, 4));
    QCOMPARE(stage.itemPosition(GraphicsRenderer::SpriteType, 1), QPoint(9, 9));
    provider->rows.removeFirst();
    emit provider->changedAt(2);  // no longer there
    emit provider->changed();
    QCOMPARE(stage.indexOfItem(GraphicsRenderer::SpriteType, &sprites[1]), 0);
    QCOMPARE(stage.scene().spriteItems.size(), 2);
    // What it does not tell of a sprite is not that of the sprite before.
    const SpriteItem plain = stage.scene().spriteItems.at(0);
    QCOMPARE(QPoint(plain.mode, plain.parent), QPoint(0, 0));
    QCOMPARE(plain.size, QSize(0, 0));
    QCOMPARE(plain.scale, QPointF(1, 1));
    QCOMPARE(QPointF(plain.flip, double(plain.rotation)), QPointF(0, 0));

    StageData::Provider other;
    stage.setSprites(&other);
    emit provider->changed();
    QCOMPARE(stage.scene().spriteItems.size(), 0);
    stage.setSprites(provider.get());
    provider.reset();
    QVERIFY(!stage.spriteProvider());
    stage.picture({8, 8});
    QVERIFY(stage.drawn.empty());
}

void TestStageScene::selectionOutlivesEqualBoxes()
{
    Stage stage;
    GraphicsRendererPrivate& scene = stage.scene();
    stage.attack.add(QRect(10, 0, 5, 5));
    stage.collision.add(QRect(20, 100, 5, 5));
    stage.showBoxes();
    for (ContactBoxes* boxes : {&scene.contactBoxes[0], &scene.contactBoxes[1]}) {
        boxes->items[0].selected = boxes == &scene.contactBoxes[0];
        boxes->items[1].selected = true;
    }
    stage.attack.at(1)->setRect(QRect(50, 50, 5, 5));
    stage.showBoxes();
    QVERIFY(scene.contactBoxes[0].items.at(0).selected);
    QVERIFY(!scene.contactBoxes[0].items.at(1).selected);
    QCOMPARE(scene.contactBoxes[0].items.at(1).rect(), QRect(50, 50, 5, 5));
    QVERIFY(scene.hasSelection);
    QCOMPARE(scene.selectionRect, QRect(0, 0, 20, 20) | QRect(20, 100, 5, 5));

    // The second list alone adds to what is selected, the first begins anew.
    stage.collision.remove(1);
    stage.setContactBoxes(ContactBoxCode::Collision, &stage.collision);
    QVERIFY(scene.hasSelection);
    stage.setContactBoxes(ContactBoxCode::Attack, nullptr);
    QVERIFY(!scene.hasSelection && !scene.selectionRect.isValid());
    QCOMPARE(stage.boxes(ContactBoxCode::Attack), nullptr);
    QCOMPARE(stage.boxes(ContactBoxCode::Collision), &stage.collision);
}

void TestStageScene::onionSkinIsAboutTheMainCross()
{
    Stage stage;
    const StageData::Sprite sprite(QImage(10, 20, QImage::Format_RGB32));
    stage.setOrigin({100, 50});
    stage.setItemPosition(GraphicsRenderer::MainCross, {1000, 1000}, 0);
    stage.setZoomLevel(4);  // half as large again
    stage.setOnionSkinSprite(&sprite, {3, -5});
    stage.setOnionSkinSprite(&sprite, {30, 30});  // that sprite is there already
    stage.picture({8, 8});
    QVERIFY(stage.onionSkin.size.isEmpty());
    stage.setOnionSkin(true, GraphicsRenderer::LighterEffect, 0.5F);
    stage.picture({8, 8});
    QCOMPARE(stage.onionSkin.base, QPoint(100, 50));
    QCOMPARE(stage.onionSkin.offset, QPoint(-4, 8));  // halves go up
    QCOMPARE(stage.onionSkin.size, QSize(15, 30));
    stage.replaceOnionSkinSprite(&sprite, {4, 6});
    stage.picture({8, 8});
    QCOMPARE(stage.onionSkin.offset, QPoint(-6, -9));
}

// Stages share the ground, and each comes to its lower colour at its own bottom.
void TestStageScene::groundFits()
{
    for (const bool isFitted : {false, true}) {
        Stage high, low;
        high.setGroundFitted(isFitted);
        high.picture({40, 800});
        low.picture({40, 100});
        high.setBackground(Qt::black, Qt::white, GraphicsRenderer::GradientBackground, {}, {}, {});
        QImage image(40, 800, QImage::Format_RGB32);
        QPainter painter(&image);
        high.render(painter);
        QCOMPARE(qRed(image.pixel(20, 400)) < 140, isFitted);
        QVERIFY(qRed(image.pixel(20, 799)) > 250);
    }
}

void TestStageScene::boxesAreDrawn()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 60; ++round) {
        Stage stage;
        QVector<QRect> rects[2] = {{stage.attack.at(0)->rect()}, {stage.collision.at(0)->rect()}};
        for (int i = 0; i < 12; ++i) {
            const QRect rect(randomPoint(random, 40),
                             QSize(random.bounded(1, 30), random.bounded(1, 30)));
            rects[i % 2].append(rect);
            (i % 2 == 0 ? stage.attack : stage.collision).add(rect);
        }
        stage.showBoxes();
        stage.setZoomTable(uchar(round % 2));
        stage.setZoomLevel(uchar(2 + random.bounded(10)));
        stage.setOrigin({40, 45});
        stage.setItemPosition(GraphicsRenderer::MainCross, {2, 3}, 0);
        QImage expected(80, 90, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::black);
        const QPoint anchor =
            QPoint(40, 45) + QPoint(qRound(2 * stage.zoom()), qRound(3 * stage.zoom()));
        drawPlainly(expected, rects[1], qRgb(0, 0, 255), anchor, stage.zoom());
        drawPlainly(expected, rects[0], qRgb(255, 0, 0), anchor, stage.zoom());
        QCOMPARE(stage.picture(expected.size()), expected);
    }
}

void TestStageScene::insideShinesThrough()
{
    Stage stage;
    stage.showBoxes();
    stage.setItemPositionMode(GraphicsRenderer::MainCross, 1, 0, 0);
    stage.setupContactBoxes(Qt::white, Qt::blue, 0.5F);
    stage.setVisibility(false, false, false, true, false, false, false);
    const QImage plain = stage.picture({20, 20});
    QVERIFY(std::abs(qRed(plain.pixel(10, 10)) - 64) <= 1);  // half of the half
    stage.scene().contactBoxes[0].items[0].selected = true;
    const QImage marked = stage.picture({20, 20});
    int marks = 0;
    for (int x = 1; x < 19; ++x) {
        marks += marked.pixel(x, 10) != plain.pixel(x, 10) ? 1 : 0;
    }
    QVERIFY(marks > 0 && marks < 18);
}

void TestStageScene::guidesAreDrawn()
{
    Stage stage;
    stage.setVisibility(false, false, false, true, true, false, true);
    stage.setOrigin({20, 30});
    stage.setGuideLines({-3, 3});
    stage.setZoomLevel(4);  // half as large again, cut to whole pixels
    const QImage image = stage.picture({40, 60});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isGuide = (x >= 16 && x <= 17) || (y >= 34 && y <= 35);
            QCOMPARE(image.pixel(x, y), isGuide ? qRgb(0, 255, 255) : qRgb(0, 0, 0));
        }
    }
}

void TestStageScene::ticksTellModelUnits()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 500; ++round) {
        const float zoom = s_zoomTable[random.bounded(2)][random.bounded(ZoomLevels)];
        const int origin = random.bounded(-3000, 3000);
        const int length = random.bounded(1500);
        const RulerTicks ticks(zoom, origin, length);
        const int units = int(10.0 / double(zoom));
        QCOMPARE(ticks.step, int(float(units) * zoom));

        QVector<int> places;
        std::copy(ticks.small.begin(), ticks.small.end(), std::back_inserter(places));
        std::copy(ticks.large.begin(), ticks.large.end(), std::back_inserter(places));
        std::sort(places.begin(), places.end());
        for (int i = 0; i < places.size(); ++i) {
            QCOMPARE((places.at(i) - origin) % ticks.step, 0);
            QVERIFY(i == 0 || places.at(i) - places.at(i - 1) == ticks.step);
        }
        if (!places.isEmpty()) {
            QVERIFY(std::abs(places.first() - RulerTicks::Band) < ticks.step);
            QVERIFY(places.last() + ticks.step > length - ticks.step);
        }
        for (const RulerTicks::Label& label : ticks.labels) {
            QCOMPARE((label.place - origin) / ticks.step * units, int(label.value));
            QCOMPARE(label.value % (5 * units), 0);
            QVERIFY(label.place != places.first());
        }
        QVERIFY(ticks.large.size() - ticks.labels.size() <= 1);
    }
}

void TestStageScene::rulersAreDrawn()
{
    Stage stage;
    stage.setBackground(Qt::white, QColor(0, 255, 0), GraphicsRenderer::GradientBackground, {}, {},
                        {});
    stage.setVisibility(false, false, false, true, true, true, false);
    stage.setOrigin({95, 47});
    stage.setZoomTable(1);
    stage.setZoomLevel(5);  // four times: a tick every eight pixels
    const QImage image = stage.picture({200, 150});
    for (int x = RulerTicks::Band; x < image.width(); ++x) {
        const bool isTick = (x - 95) % 8 == 0;
        const bool isLong = (x - 95) % 40 == 0;
        QCOMPARE(image.pixel(x, 24), isTick ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        QCOMPARE(image.pixel(x, 21), isLong ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    for (int y = RulerTicks::Band; y < image.height(); ++y) {
        const bool isTick = (y - 47) % 8 == 0;
        QCOMPARE(image.pixel(24, y), isTick ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    QCOMPARE(image.pixel(5, 5), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(12, 40), qRgb(0, 255, 0));
    QCOMPARE(image.pixel(40, 12), qRgb(0, 255, 0));
}

void TestStageScene::pictureStandsAtTheOrigin()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("ground.png"));
    QImage ground(10, 6, QImage::Format_RGB32);
    ground.fill(Qt::yellow);
    QVERIFY(ground.save(file));
    Stage stage;
    stage.setBackground(Qt::black, Qt::black, GraphicsRenderer::FileBackground, {-3, 2}, file, {});
    stage.setOrigin({20, 10});
    stage.setZoomLevel(4);
    const QImage image = stage.picture({50, 40});
    const QRect place(20 + qRound(-4.5), 10 + 3, 15, 9);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(image.pixel(x, y), place.contains(x, y) ? qRgb(255, 255, 0) : qRgb(0, 0, 0));
        }
    }
    stage.setBackground(Qt::black, Qt::black, GraphicsRenderer::FileBackground, {}, file + 'x', {});
    QCOMPARE(stage.picture({50, 40}).pixel(20, 15), qRgb(0, 0, 0));
}

void TestStageScene::picturesOfTheLibrary()
{
    const struct
    {
        int width;
        QPoint position;
        QSize size;
    } rows[] = {{639, {-212, -206}, {424, 240}},
                {640, {-424, -414}, {848, 480}},
                {1280, {-638, -622}, {1280, 720}},
                {1920, {-958, -935}, {1920, 1080}}};
    Stage stage;
    for (const auto& row : rows) {
        stage.setBackground(Qt::black, Qt::black, GraphicsRenderer::ResolutionBackground, {1, 1},
                            {}, {row.width, 1});
        const Background& ground = GraphicsRendererPrivate::background();
        QCOMPARE(ground.position, row.position);
        QCOMPARE(ground.image.size(), row.size);
        // The floor is drawn where the ground of the game is, and the middle where its middle is.
        const QImage image = ground.image.toImage();
        const QPoint zero = -row.position;
        const int floor = qAlpha(image.pixel(5, zero.y()));
        QVERIFY(floor > qAlpha(image.pixel(5, zero.y() - 1)));
        QVERIFY(floor > qAlpha(image.pixel(5, zero.y() + 1)));
        QVERIFY(qAlpha(image.pixel(zero.x(), 5)) > qAlpha(image.pixel(zero.x() - 1, 5)));
    }
}

void TestStageScene::crossesMarkTheirPoint()
{
    Stage stage;
    for (const auto type : {GraphicsRenderer::LargeCrosses, GraphicsRenderer::SmallCrosses}) {
        stage.setCrossHair(type, {}, {}, {});
        for (int number = 0; number < 3; ++number) {
            stage.setVisibility(number == 0, number == 1, number == 2, true, true, false, false);
            const auto cross = GraphicsRenderer::ItemType(number);
            stage.setItemPosition(cross, {30, 40}, 0);
            const QPixmap& picture = stage.scene().crossImage(Cross::Type(number));
            const QRgb middle = picture.toImage().pixel(picture.rect().center());
            QCOMPARE(qAlpha(middle), 255);
            for (int level = 0; level < ZoomLevels; ++level) {
                stage.setZoomLevel(static_cast<unsigned char>(level));
                const int factor = std::max(qRound(stage.zoom()), 1);
                const QPoint point = stage.scene().calcPos(cross, 0);
                const QImage image = stage.picture({400, 400});
                QCOMPARE(image.pixel(point), middle);
                QVERIFY(image.pixel(point - QPoint(factor, 0)) != middle);
            }
        }
    }
    const QSize small = stage.scene().crossImage(Cross::Main).size();
    stage.setCrossHair(GraphicsRenderer::FileCrosses, QStringLiteral("missing"), {}, {});
    QCOMPARE(stage.scene().crossImage(Cross::Main).size(), small);
}

QTEST_MAIN(TestStageScene)

#include "tst_stagescene.moc"
