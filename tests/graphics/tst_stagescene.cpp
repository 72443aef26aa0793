#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"
#include "graphics/stage/rulerticks_p.h"
#include "support/stagedata.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>
#include <set>

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
/// share as it is at the start.
class Stage : public GraphicsRenderer
{
public:
    Stage()
    {
        setOrigin({});
        setPriority(false, false);
        setZoomMode(ZoomAboutOrigin);
        setZoomTable(0);
        setupContactBoxes(Qt::red, Qt::blue, 1);
        setCrossHair(SmallCrosses, {}, {}, {});
        setBackground(Qt::black, Qt::black, GradientBackground, {}, {}, {});
        setVisibility(false, false, false, true, true, false, false);
    }

    GraphicsRendererPrivate& scene() { return GraphicsRendererPrivate::of(*this); }

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

/// Where things stand, found by walking back to front.
struct PlaceModel
{
    GraphicsRendererPrivate& scene;

    int zoomed(int length) const { return qRound(float(length) * scene.zoom); }

    QPoint place(bool isSprite, unsigned index, std::set<std::pair<bool, unsigned>> met) const
    {
        if (index >= (isSprite ? unsigned(scene.spriteItems.size()) : 3U)) {
            return {};
        }
        const SpriteItem sprite = isSprite ? scene.spriteItems.at(int(index)) : SpriteItem();
        const Cross cross = isSprite ? Cross() : scene.crosses[index];
        const QPoint own = isSprite ? QPoint(int(sprite.position.x() * sprite.scale.x()),
                                             int(sprite.position.y() * sprite.scale.y()))
                                    : cross.position;
        const int mode = (isSprite ? sprite.mode : cross.mode) & 0xf3;
        const unsigned parent = isSprite ? sprite.parent : cross.parent;
        if (mode == 0 || !met.insert({isSprite, index}).second) {
            return own;
        }
        return QPoint(zoomed(own.x()), zoomed(own.y())) + anchor(mode, parent, met);
    }

    QPoint anchor(int mode, unsigned parent, const std::set<std::pair<bool, unsigned>>& met) const
    {
        return mode == 1                ? GraphicsRendererPrivate::m_origin
               : mode == 2 || mode == 3 ? place(mode == 3, parent, met)
                                        : QPoint();
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

class tst_StageScene : public QObject
{
    Q_OBJECT

private slots:
    void rounding_data();
    void rounding();
    void placesFollowParents();
    void parentsTakeThePlaceOfWhatIsFixed();
    void extremesStayBounded();
    void zoomLevels_data();
    void zoomLevels();
    void absoluteThingsFollowTheZoom_data();
    void absoluteThingsFollowTheZoom();
    void providerIsFollowed();
    void selectionOutlivesEqualBoxes();
    void onionSkinIsAboutTheMainCross();
    void boxesAreDrawn();
    void insideShinesThrough();
    void guidesAreDrawn();
    void ticksTellModelUnits();
    void rulersAreDrawn();
    void pictureStandsAtTheOrigin();
    void picturesOfTheLibrary_data();
    void picturesOfTheLibrary();
    void crossesMarkTheirPoint();
    void anyWidgetIsDrawn();
};

void tst_StageScene::rounding_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("rounded");
    QTest::addColumn<int>("truncated");
    QTest::newRow("half") << 2.5 << 3 << 2;
    QTest::newRow("minus half") << -2.5 << -2 << -2;
    QTest::newRow("not a number") << NotANumber << 0 << 0;
    QTest::newRow("infinite") << HUGE_VAL << Most << Most;
    QTest::newRow("minus infinite") << -HUGE_VAL << Least << Least;
    QTest::newRow("past the end") << 2147483648.0 << Most << Most;
    QTest::newRow("before the start") << -2147483649.0 << Least << Least;
}

void tst_StageScene::rounding()
{
    QFETCH(double, value);
    QTEST(roundedInt(value), "rounded");
    QTEST(roundedInt(float(value)), "rounded");
    QTEST(truncatedInt(value), "truncated");
}

void tst_StageScene::placesFollowParents()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    for (int round = 0; round < 2000; ++round) {
        Stage stage;
        GraphicsRendererPrivate& scene = stage.scene();
        const auto mode = [&] {
            const int anchor = random.bounded(12);  // most of them have parents
            return static_cast<unsigned char>((anchor < 4 ? anchor : 2 + anchor % 2) |
                                              random.bounded(4) << 2);
        };
        const auto parent = [&] { return static_cast<unsigned short>(random.bounded(8)); };
        for (Cross& cross : scene.crosses) {
            cross = {true, mode(), static_cast<unsigned short>(parent() / 2),
                     randomPoint(random, 50)};
        }
        StageData::Provider provider;
        provider.rows.resize(7);
        stage.setSprites(&provider);
        for (SpriteItem& item : scene.spriteItems) {
            item.mode = mode();
            item.parent = parent();
            item.position = randomPoint(random, 50);
            item.scale = QPointF(random.generateDouble() * 6 - 3, random.generateDouble() * 6 - 3);
            item.size = QSize(random.bounded(40), random.bounded(40));
            item.layer = random.bounded(4) == 0 ? 1 : 0;
        }
        stage.setZoomTable(static_cast<unsigned char>(random.bounded(2)));
        stage.setZoomLevel(static_cast<unsigned char>(random.bounded(ZoomLevels)));
        stage.setOrigin(randomPoint(random, 500));
        stage.picture({8, 8});

        const PlaceModel model{scene};
        for (unsigned cross = 0; cross < 3; ++cross) {
            QCOMPARE(scene.calcPos(GraphicsRenderer::ItemType(cross), 0),
                     model.place(false, cross, {}));
        }
        for (unsigned index = 0; index < unsigned(scene.spriteItems.size()); ++index) {
            const SpriteItem& item = scene.spriteItems.at(int(index));
            const QPoint place = model.place(true, index, {});
            QCOMPARE(scene.calcPos(GraphicsRenderer::SpriteType, index), place);
            // What is drawn stands there, too, and turns about its anchor.
            QCOMPARE(stage.drawn.count(index), size_t(item.layer == 0 ? 1 : 0));
            if (item.layer == 0) {
                const Drawn& drawn = stage.drawn[index];
                QCOMPARE(drawn.base, model.anchor(item.mode & 0xf3, item.parent, {{true, index}}));
                QCOMPARE(drawn.base + drawn.offset, place);
                QCOMPARE(drawn.size.width(), model.zoomed(int(item.size.width() * item.scale.x())));
            }
        }
        QCOMPARE(scene.anchorOf(14, 9), QPoint());
        QCOMPARE(scene.anchorOf(14, 1), model.place(false, 1, {}));
    }
}

void tst_StageScene::parentsTakeThePlaceOfWhatIsFixed()
{
    Stage stage;
    stage.scene().spriteItems.resize(3);
    const auto parent = [&stage](unsigned char mode, unsigned index) {
        auto element = GraphicsRenderer::ContactBoxElement;
        stage.scene().posFromMode(mode, {}, index, &element);
        return element;
    };
    QCOMPARE(parent(AbsoluteAnchor, 1), GraphicsRenderer::StageElement);
    QCOMPARE(parent(OriginAnchor, 1), GraphicsRenderer::StageElement);
    QCOMPARE(parent(CrossAnchor, 2), GraphicsRenderer::ExtraCrossElement);
    QCOMPARE(parent(CrossAnchor, 3), GraphicsRenderer::StageElement);
    QCOMPARE(parent(SpriteAnchor, 3), GraphicsRenderer::StageElement);
    QCOMPARE(parent(SpriteAnchor, 2), GraphicsRenderer::SpriteElement);
    QCOMPARE(stage.scene().itemIndex, 2);
}

void tst_StageScene::extremesStayBounded()
{
    Stage stage;
    GraphicsRendererPrivate& scene = stage.scene();
    StageData::Provider provider;
    for (const double scale : {NotANumber, HUGE_VAL, -HUGE_VAL, 1e300, -1e300, 1.0}) {
        for (const QPoint& point : {QPoint(Most, Least), QPoint(Least, Most)}) {
            for (const int mode : {AbsoluteAnchor, OriginAnchor, CrossAnchor, SpriteAnchor}) {
                provider.rows.append(
                    {nullptr,
                     {point, mode, 0, QSize(Most, Least), QPointF(scale, scale), 3, scale}});
            }
        }
    }
    StageData::Boxes boxes(ContactBoxCode::Attack);
    boxes.add(QRect(QPoint(Least, Least), QPoint(Most, Most)));
    boxes.add(QRect(QPoint(Most, Most), QPoint(Most, Most)));
    stage.setContactBoxes(ContactBoxCode::Attack, &boxes);
    stage.setVisibility(true, true, true, true, true, true, true);
    stage.setSprites(&provider);
    stage.setZoomTable(1);
    for (const QPoint& origin : {QPoint(Most, Least), QPoint(Least, Most)}) {
        stage.setOrigin(origin);
        stage.setGuideLines(origin);
        for (const auto cross : {GraphicsRenderer::MainCross, GraphicsRenderer::SecondaryCross}) {
            stage.setItemPosition(cross, origin, 0);
            stage.setItemPositionMode(cross, cross == GraphicsRenderer::MainCross ? 12 : 13, 0, 0);
        }
        for (int level = 0; level < ZoomLevels; ++level) {
            stage.setZoomLevel(static_cast<unsigned char>(level));
            stage.picture({40, 40});
            for (const auto& [index, drawn] : stage.drawn) {
                QVERIFY(std::abs(drawn.base.x()) <= StageLimit);
                QVERIFY(std::abs(drawn.offset.y()) <= StageLimit);
                QVERIFY(std::isfinite(scene.spriteItems.at(int(index)).rotation));
            }
        }
    }
    QCOMPARE(scene.contactBoxes[0].items.at(0).rect(), boxes.at(0)->rect());
    QCOMPARE(scene.contactBoxes[0].items.at(1).rect(), boxes.at(1)->rect());
}

void tst_StageScene::zoomLevels_data()
{
    QTest::addColumn<int>("table");
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("steps");  // + - 1, w up and W down by the wheel
    QTest::addColumn<int>("level");
    QTest::addColumn<float>("zoom");
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

void tst_StageScene::zoomLevels()
{
    QFETCH(int, table);
    QFETCH(int, start);
    QFETCH(QString, steps);
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

void tst_StageScene::absoluteThingsFollowTheZoom_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QPoint>("middle");
    QTest::newRow("origin") << int(GraphicsRenderer::ZoomAboutOrigin) << QPoint(30, 70);
    QTest::newRow("widget") << int(GraphicsRenderer::ZoomAboutCenter) << QPoint(100, 50);
}

void tst_StageScene::absoluteThingsFollowTheZoom()
{
    QFETCH(int, mode);
    QFETCH(QPoint, middle);
    Stage stage;
    stage.sizeChanged(201, 101);
    stage.setZoomMode(GraphicsRenderer::ZoomMode(mode));
    stage.setZoomTable(1);
    stage.zoomActual();
    stage.setOrigin({30, 70});
    GraphicsRendererPrivate& scene = stage.scene();
    StageData::Boxes boxes(ContactBoxCode::Collision);
    boxes.add(QRect(40, 60, 7, 9));
    stage.setContactBoxes(ContactBoxCode::Collision, &boxes);
    stage.setItemPositionMode(GraphicsRenderer::ContactBoxesType, AbsoluteAnchor, 0, 0);
    stage.setItemPositionMode(GraphicsRenderer::MainCross, AbsoluteAnchor, 0, 0);
    stage.setItemPosition(GraphicsRenderer::MainCross, {130, 20}, 0);
    stage.setItemPosition(GraphicsRenderer::ExtraCross, {130, 20}, 0);
    scene.spriteItems.resize(1);
    scene.spriteItems[0].position = {130, 20};

    const QPoint distance = QPoint(130, 20) - middle;
    for (const int level : {5, 0, 11, 3, 2}) {
        stage.setZoomLevel(static_cast<unsigned char>(level));
        const QPointF expected = middle + QPointF(distance) * double(stage.zoom());
        const QPoint cross = stage.itemPosition(GraphicsRenderer::MainCross, 0);
        // It drifts by what was rounded away at a quarter, no more.
        QVERIFY((cross - expected).manhattanLength() <= 4 * double(std::max(stage.zoom(), 1.0F)));
        QCOMPARE(stage.itemPosition(GraphicsRenderer::SpriteType, 0), cross);
        QCOMPARE(stage.itemPosition(GraphicsRenderer::ExtraCross, 0), QPoint(130, 20));
        QCOMPARE(stage.origin(), QPoint(30, 70));
        const ContactItem& item = scene.contactBoxes[1].items.at(0);
        QVERIFY(std::abs(item.x - (middle.x() + (40 - middle.x()) * double(stage.zoom()))) < 1e-4);
        QCOMPARE(item.width, 7.0);
    }
}

void tst_StageScene::providerIsFollowed()
{
    StageData::Sprite first;
    StageData::Sprite second;
    auto provider = std::make_unique<StageData::Provider>();
    const QVariantList values{QPoint(3, 4), 9, 1, QSize(5, 6), QPointF(2, 3), 2, 45.0, 0};
    provider->rows = {{&first, values.toVector()}, {&second, {}}, {&first, {}}};
    Stage stage;
    stage.setSprites(provider.get());
    QCOMPARE(stage.indexOfItem(GraphicsRenderer::SpriteType, &first), 0);
    QCOMPARE(stage.indexOfItem(GraphicsRenderer::SpriteType, &second), 1);
    const SpriteItem item = stage.scene().spriteItems.at(0);
    QCOMPARE(item.position, QPoint(3, 4));
    QCOMPARE(int(item.mode), 9);
    QCOMPARE(int(item.parent), 1);
    QCOMPARE(item.size, QSize(5, 6));
    QCOMPARE(item.scale, QPointF(2, 3));
    QCOMPARE(int(item.flip), 2);
    QCOMPARE(item.rotation, 45.0F);

    provider->rows[0].values[0] = QPoint(8, 8);
    provider->rows[1].values = {QPoint(9, 9)};
    emit provider->changedAt(1);
    QCOMPARE(stage.itemPosition(GraphicsRenderer::SpriteType, 0), QPoint(3, 4));
    QCOMPARE(stage.itemPosition(GraphicsRenderer::SpriteType, 1), QPoint(9, 9));
    provider->rows.removeFirst();
    emit provider->changedAt(2);  // no longer there
    emit provider->changed();
    QCOMPARE(stage.indexOfItem(GraphicsRenderer::SpriteType, &second), 0);
    QCOMPARE(stage.scene().spriteItems.size(), 2);

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

void tst_StageScene::selectionOutlivesEqualBoxes()
{
    Stage stage;
    GraphicsRendererPrivate& scene = stage.scene();
    StageData::Boxes attack(ContactBoxCode::Attack);
    StageData::Boxes collision(ContactBoxCode::Collision);
    for (int i = 0; i < 3; ++i) {
        attack.add(QRect(10 * i, 0, 5, 5));
        collision.add(QRect(10 * i, 100, 5, 5));
    }
    const auto show = [&] {
        stage.setContactBoxes(ContactBoxCode::Attack, &attack);
        stage.setContactBoxes(ContactBoxCode::Collision, &collision);
    };
    show();
    scene.contactBoxes[0].items[0].selected = true;
    scene.contactBoxes[0].items[1].selected = true;
    scene.contactBoxes[1].items[2].selected = true;
    attack.at(1)->setRect(QRect(50, 50, 5, 5));
    show();
    QVERIFY(scene.contactBoxes[0].items.at(0).selected);
    QVERIFY(!scene.contactBoxes[0].items.at(1).selected);
    QCOMPARE(scene.contactBoxes[0].items.at(1).rect(), QRect(50, 50, 5, 5));
    QVERIFY(scene.hasSelection);
    QCOMPARE(scene.selectionRect, QRect(0, 0, 5, 5) | QRect(20, 100, 5, 5));

    // A second list alone adds to what is selected, the first begins anew.
    collision.remove(2);
    stage.setContactBoxes(ContactBoxCode::Collision, &collision);
    QVERIFY(scene.hasSelection);
    stage.setContactBoxes(ContactBoxCode::Attack, nullptr);
    QVERIFY(!scene.hasSelection);
    QVERIFY(!scene.selectionRect.isValid());
    QCOMPARE(stage.boxes(ContactBoxCode::Attack), nullptr);
    QCOMPARE(stage.boxes(ContactBoxCode::Collision), &collision);
}

void tst_StageScene::onionSkinIsAboutTheMainCross()
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
}

void tst_StageScene::boxesAreDrawn()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 60; ++round) {
        Stage stage;
        stage.setupContactBoxes(Qt::red, Qt::blue, 0);  // nothing inside
        StageData::Boxes attack(ContactBoxCode::Attack);
        StageData::Boxes collision(ContactBoxCode::Collision);
        QVector<QRect> rects[2];
        for (int i = 0; i < 12; ++i) {
            const QRect rect(randomPoint(random, 40),
                             QSize(random.bounded(1, 30), random.bounded(1, 30)));
            rects[i % 2].append(rect);
            (i % 2 == 0 ? attack : collision).add(rect);
        }
        stage.setContactBoxes(ContactBoxCode::Attack, &attack);
        stage.setContactBoxes(ContactBoxCode::Collision, &collision);
        stage.setZoomTable(static_cast<unsigned char>(round % 2));
        stage.setZoomLevel(static_cast<unsigned char>(2 + random.bounded(10)));
        stage.setOrigin({40, 45});
        stage.setItemPosition(GraphicsRenderer::MainCross, {2, 3}, 0);
        QImage expected(80, 90, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::black);
        const QPoint anchor = stage.scene().calcPos(GraphicsRenderer::MainCross, 0);
        drawPlainly(expected, rects[1], qRgb(0, 0, 255), anchor, stage.zoom());
        drawPlainly(expected, rects[0], qRgb(255, 0, 0), anchor, stage.zoom());
        QCOMPARE(stage.picture(expected.size()), expected);
    }
}

void tst_StageScene::insideShinesThrough()
{
    Stage stage;
    StageData::Boxes attack(ContactBoxCode::Attack);
    attack.add(QRect(0, 0, 20, 20));
    stage.setContactBoxes(ContactBoxCode::Attack, &attack);
    stage.setupContactBoxes(Qt::white, Qt::blue, 0.5F);
    const QImage plain = stage.picture({20, 20});
    QVERIFY(std::abs(qRed(plain.pixel(10, 10)) - 64) <= 1);  // half of the half
    stage.scene().contactBoxes[0].items[0].selected = true;
    const QImage marked = stage.picture({20, 20});
    int marks = 0;
    for (int x = 1; x < 19; ++x) {
        marks += marked.pixel(x, 10) != plain.pixel(x, 10) ? 1 : 0;
    }
    QVERIFY(marks > 0 && marks < 18);
    stage.setVisibility(false, false, false, false, true, false, false);
    QCOMPARE(stage.picture({20, 20}).pixel(0, 0), qRgb(0, 0, 0));
}

void tst_StageScene::guidesAreDrawn()
{
    Stage stage;
    stage.setVisibility(false, false, false, true, true, false, true);
    stage.setOrigin({20, 30});
    stage.setGuideLines({-3, 3});
    stage.setZoomLevel(5);
    const QImage image = stage.picture({40, 60});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isGuide = (x >= 14 && x <= 15) || (y >= 36 && y <= 37);
            QCOMPARE(image.pixel(x, y), isGuide ? qRgb(0, 255, 255) : qRgb(0, 0, 0));
        }
    }
}

void tst_StageScene::ticksTellModelUnits()
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
        }
        const int labelled = places.isEmpty() || ticks.large.isEmpty()
                                 ? 0
                                 : ticks.large.size() - (ticks.large[0] == places.first() ? 1 : 0);
        QCOMPARE(ticks.labels.size(), labelled);
    }
}

void tst_StageScene::rulersAreDrawn()
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
        QCOMPARE(image.pixel(x, 28), isTick ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        QCOMPARE(image.pixel(x, 21), isLong ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    for (int y = RulerTicks::Band; y < image.height(); ++y) {
        const bool isTick = (y - 47) % 8 == 0;
        QCOMPARE(image.pixel(28, y), isTick ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    QCOMPARE(image.pixel(5, 5), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(12, 40), qRgb(0, 255, 0));
    QCOMPARE(image.pixel(40, 12), qRgb(0, 255, 0));
}

void tst_StageScene::pictureStandsAtTheOrigin()
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

void tst_StageScene::picturesOfTheLibrary_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("size");
    QTest::newRow("240") << 639 << QPoint(-212, -206) << QSize(424, 240);
    QTest::newRow("480") << 640 << QPoint(-424, -414) << QSize(848, 480);
    QTest::newRow("720") << 1280 << QPoint(-638, -622) << QSize(1280, 720);
    QTest::newRow("1080") << 1920 << QPoint(-958, -935) << QSize(1920, 1080);
}

void tst_StageScene::picturesOfTheLibrary()
{
    QFETCH(int, width);
    QFETCH(QPoint, position);
    Stage stage;
    stage.setBackground(Qt::black, Qt::black, GraphicsRenderer::ResolutionBackground, {1, 1}, {},
                        {width, 1});
    const Background& ground = GraphicsRendererPrivate::background();
    QCOMPARE(ground.position, position);
    QTEST(ground.image.size(), "size");
    // The floor is drawn where the ground of the game is, and the middle where its middle is.
    const QImage image = ground.image.toImage();
    const QPoint zero = -position;
    QVERIFY(qAlpha(image.pixel(5, zero.y())) > qAlpha(image.pixel(5, zero.y() - 1)));
    QVERIFY(qAlpha(image.pixel(5, zero.y())) > qAlpha(image.pixel(5, zero.y() + 1)));
    QVERIFY(qAlpha(image.pixel(zero.x(), 5)) > qAlpha(image.pixel(zero.x() - 1, 5)));
}

void tst_StageScene::crossesMarkTheirPoint()
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

void tst_StageScene::anyWidgetIsDrawn()
{
    Stage stage;
    stage.setVisibility(true, true, true, true, true, true, true);
    StageData::Boxes attack(ContactBoxCode::Attack);
    attack.add(QRect(0, 0, 20, 20));
    stage.setContactBoxes(ContactBoxCode::Attack, &attack);
    stage.scene().hasSelection = true;
    for (const QSize& size : {QSize(1, 1), QSize(31, 1), QSize(1, 31), QSize(35, 35)}) {
        for (int level = 0; level < ZoomLevels; ++level) {
            stage.setZoomLevel(static_cast<unsigned char>(level));
            const QImage image = stage.picture(size);
            QVERIFY(image.pixel(0, 0) != qRgb(0, 255, 0));
            QVERIFY(image.pixel(size.width() - 1, size.height() - 1) != qRgb(0, 255, 0));
        }
    }
}

QTEST_MAIN(tst_StageScene)

#include "tst_stagescene.moc"
