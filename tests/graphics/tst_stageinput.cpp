#include "graphics/stage/graphicsrenderer.h"

#include "graphics/stage/graphicsrenderer_p.h"
#include "scenemodel.h"
#include "support/testtable.h"

#include <QCursor>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTransform>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using namespace Zorv;
using Element = GraphicsRenderer::RenderElement;
using Points = QVector<QPoint>;
using Rects = QVector<QRect>;

/// What a row of a table does to the scene.
using Change = std::function<void(Scene&)>;

Q_DECLARE_METATYPE(Points)
Q_DECLARE_METATYPE(Rects)
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(GraphicsRenderer::ItemType)

namespace {

const unsigned Seed = 64;

/// A stage without a widget.
struct Stage
{
    explicit Stage(const Scene& scene, const QString& crossFile)
    {
        using Renderer = GraphicsRenderer;
        renderer.setCrossHair(Renderer::FileCrosses, crossFile, crossFile, crossFile);
        renderer.setPriority(scene.spritesOverGuides, scene.boxesOverCrosses);
        const bool* shown = scene.shown;
        renderer.setVisibility(shown[0], shown[1], shown[2], shown[3], shown[4], shown[5],
                               shown[6]);
        renderer.setZoomTable(scene.table);
        renderer.setZoomLevel(scene.level);
        renderer.setOrigin(scene.origin);
        renderer.setGuideLines(scene.guides);
        for (unsigned i = 0; i < 3; ++i) {
            const auto type = GraphicsRenderer::ItemType(i);
            renderer.setItemPosition(type, scene.crosses[i].position, 0);
            renderer.setItemPositionMode(type, uchar(scene.crosses[i].mode),
                                         unsigned(scene.crosses[i].parent), 0);
        }
        renderer.setItemPositionMode(GraphicsRenderer::ContactBoxesType, uchar(scene.boxMode),
                                     unsigned(scene.boxParent), 0);
        for (const PlainItem& item : scene.sprites) {
            provider.rows.append(item.row());
        }
        renderer.setSprites(&provider);
        for (int i = 0; i < 8; ++i) {
            const auto type = ContactBoxCode::BoxType(i + 1);
            lists.push_back(std::make_unique<StageData::Boxes>(type));
            for (const QRect& box : scene.boxes[i]) {
                lists.back()->add(box);
            }
            renderer.setContactBoxes(type, lists.back().get());
        }
        if (scene.clickMode == GraphicsRenderer::DrawContactBoxMode) {
            renderer.setDrawContactBoxMode(ContactBoxCode::Attack);
        } else if (scene.clickMode == GraphicsRenderer::CaptureMode) {
            renderer.setCaptureMode();
        }
    }

    void press(QPoint pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        renderer.mousePressed(pos, Qt::LeftButton, modifiers);
    }

    void release(QPoint pos, Qt::MouseButton button = Qt::LeftButton)
    {
        renderer.mouseReleased(pos, button, Qt::NoModifier);
    }

    /// With the left button from the first point over the others.
    void drag(const Points& points, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(points.first(), modifiers);
        for (int i = 1; i < points.size(); ++i) {
            renderer.mouseMoved(points.at(i), modifiers);
        }
        release(points.last());
    }

    QRect box(int type, int index)
    {
        renderer.updateSelectedBoxes();
        return lists[size_t(type - 1)]->at(index)->rect();
    }

    StageData::Provider provider;
    std::vector<std::unique_ptr<StageData::Boxes>> lists;
    GraphicsRenderer renderer;
};

/// Two attack boxes over each other, and a body box over their corner; a sprite farther away.
Scene plainScene()
{
    Scene scene;
    scene.boxes[0] = {QRect(-60, -60, 40, 40), QRect(-50, -50, 40, 40)};
    scene.boxes[1] = {QRect(-30, -30, 40, 40)};
    PlainItem sprite;
    sprite.position = {20, 20};
    sprite.size = {50, 30};
    scene.sprites = {sprite};
    return scene;
}

/// Takes away what lies on top of a point, which can be moved by itself, and tells what it was.
StageHit peeled(Scene& scene, QPoint pos)
{
    const QRect gone(100000, 100000, 1, 1);
    const Element top = scene.at(pos);
    if (top == GraphicsRenderer::SpriteElement) {
        int index = scene.sprites.size() - 1;
        while (!scene.covers(index, pos)) {
            --index;
        }
        scene.sprites[index].size = QSize(0, 0);
        return {top, index};
    }
    if (top == GraphicsRenderer::ContactBoxElement) {
        const QRect found = scene.boxUnder(pos);
        int list = 7;
        while (list > 0 &&
               !(list > 1 || scene.shown[3 + list] ? scene.boxes[list] : Rects()).contains(found)) {
            --list;
        }
        const int index = scene.boxes[list].lastIndexOf(found);
        scene.boxes[list][index] = gone;
        return {top, index, list};
    }
    if (top == GraphicsRenderer::VerticalGuide || top == GraphicsRenderer::HorizontalGuide) {
        scene.shown[6] = false;
    } else if (top != GraphicsRenderer::StageElement) {
        scene.shown[top - GraphicsRenderer::MainCrossElement] = false;
    }
    return {top};
}

Scene changed(const Change& change)
{
    Scene scene = plainScene();
    if (change) {
        change(scene);
    }
    return scene;
}

}  // namespace

class TestStageInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void hitTestAgreesWithAModel();
    void clicksAgreeWithAModel();
    void clickBeginsAnew();
    void cursors();
    void drags_data();
    void drags();
    void boxDrags_data();
    void boxDrags();
    void selection();
    void selectedBoxIsTold();
    void drawnBoxes_data();
    void drawnBoxes();
    void modesInTheMiddleOfADrag();
    void capture();
    void strangeNumbers();

private:
    QTemporaryDir m_folder;
    QString m_cross;
};

void TestStageInput::initTestCase()
{
    qRegisterMetaType<GraphicsRenderer::ItemType>("Zorv::GraphicsRenderer::ItemType");
    m_cross = m_folder.filePath(QStringLiteral("cross.png"));
    QVERIFY(QImage(CrossSize, CrossSize, QImage::Format_ARGB32).save(m_cross));
}

void TestStageInput::init()
{
    GraphicsRenderer().setZoomMode(GraphicsRenderer::ZoomAboutOrigin);
}

void TestStageInput::hitTestAgreesWithAModel()
{
    QRandomGenerator random(Seed);
    int counts[16] = {};
    for (int round = 0; round < 600; ++round) {
        Scene scene = randomScene(random);
        Stage stage(scene, m_cross);
        scene.zoom = stage.renderer.zoom();
        if (scene.clickMode == GraphicsRenderer::PositioningMode && round % 2) {
            const QPoint pos(random.bounded(250), random.bounded(250));
            const bool selects = scene.at(pos) == GraphicsRenderer::ContactBoxElement;
            stage.press(pos);
            stage.release(pos);
            scene.selection = selects ? scene.boxUnder(pos) : QRect();
        }
        for (int i = 0; i < 80; ++i) {
            QPoint pos(random.bounded(-10, 250), random.bounded(-10, 250));
            if (i % 2 && scene.selection.isValid()) {
                const QRect& box = scene.selection;
                const int x[] = {box.left(), box.center().x(), box.right()};
                const int y[] = {box.top(), box.center().y(), box.bottom()};
                pos = scene.scaled({x[random.bounded(3)], y[random.bounded(3)]}) +
                      scene.anchor(scene.boxMode, scene.boxParent, {}) +
                      QPoint(random.bounded(-8, 8), random.bounded(-8, 8));
            }
            const Element expected = scene.at(pos);
            ++counts[expected];
            if (stage.renderer.hitTest(pos) != expected) {
                qWarning() << "seed" << Seed << "round" << round << pos;
                QCOMPARE(stage.renderer.hitTest(pos), expected);
            }
        }
    }
    QVERIFY(std::find(std::begin(counts), std::end(counts), 0) == std::end(counts));
}

// Presses with Alt and without, and clicks at one place, against what is found by taking one thing
// after the other away.
void TestStageInput::clicksAgreeWithAModel()
{
    QRandomGenerator random(Seed);
    int below[4] = {};
    for (int round = 0; round < 400; ++round) {
        Scene scene = randomScene(random);
        scene.clickMode = GraphicsRenderer::PositioningMode;
        scene.boxMode |= MovableBoth;
        for (auto& boxes : scene.boxes) {
            for (QRect& box : boxes) {
                box.adjust(-30, -30, 30, 30);  // or their handles would cover them
            }
        }
        for (StageCross& cross : scene.crosses) {
            cross.mode |= MovableBoth;
        }
        for (PlainItem& item : scene.sprites) {
            item.mode |= MovableBoth;
        }
        Stage stage(scene, m_cross);
        GraphicsRendererPrivate& d = GraphicsRendererPrivate::of(stage.renderer);
        scene.zoom = stage.renderer.zoom();
        for (int list = 0; list < 8; ++list) {
            if (random.bounded(4) == 0) {
                stage.renderer.setContactBoxesLocked(ContactBoxCode::BoxType(list + 1), true);
                scene.boxes[list].clear();
            }
        }
        for (int i = 0; i < 15; ++i) {
            const QPoint pos(random.bounded(30, 200), random.bounded(30, 200));
            stage.renderer.deselectContactBoxes();
            stage.renderer.setPositioningMode();
            QVector<StageHit> hits;
            for (Scene rest = scene; rest.at(pos) != GraphicsRenderer::StageElement;) {
                hits.append(peeled(rest, pos));
            }
            const int count = qMax(hits.size(), 1);
            hits.resize(count);
            int taken = 0;
            for (int click = 0; click < 2 * count; ++click) {
                const bool isBeneath = random.bounded(3) == 0;
                if (!isBeneath && isSizer(stage.renderer.hitTest(pos))) {
                    break;  // of a box that was selected
                }
                taken = isBeneath ? (taken + 1) % count : taken;
                stage.press(pos, isBeneath ? Qt::AltModifier : Qt::NoModifier);
                QVERIFY(d.element == hits[taken].element);
                stage.release(pos);
                taken = !isBeneath && click > 0 ? (taken + 1) % count : taken;
                const StageHit& hit = hits[taken];
                QVERIFY2(d.element == hit.element, qPrintable(QString::number(round)));
                QVERIFY(hit.item < 0 || d.itemIndex == hit.item);
                QVector<GraphicsRenderer::SelectedBox> selected = stage.renderer.selectedBoxes();
                QCOMPARE(selected.size(), hit.list < 0 ? 0 : 1);
                QVERIFY(hit.list < 0 ||
                        (selected[0].type == hit.list + 1 && selected[0].index == hit.item));
                ++below[qMin(taken, 3)];
            }
        }
    }
    QVERIFY(std::find(std::begin(below), std::end(below), 0) == std::end(below));
}

// What is pressed a second time and dragged is what the first click has taken; and a click is the
// first one after all that changes what lies there.
void TestStageInput::clickBeginsAnew()
{
    const QPoint pos(60, 60);  // on both attack boxes
    const QVector<std::function<void(Stage&)>> changes = {
        [](Stage& stage) {
            stage.drag({{60, 60}, {70, 70}});
        },
        [](Stage& stage) {
            stage.renderer.setOrigin({101, 100});
        },
        [](Stage& stage) { stage.renderer.setZoomLevel(3); },
        [](Stage& stage) { stage.renderer.setCaptureMode(); },
        [&](Stage& stage) {
            stage.press({200, 250});
        },
        [](Stage& stage) {
            stage.lists[0]->add({-500, -500, 5, 5});
            stage.renderer.setContactBoxes(ContactBoxCode::Attack, stage.lists[0].get());
        },
    };
    for (int i = -1; i < changes.size(); ++i) {
        Stage stage(plainScene(), m_cross);
        stage.press(pos);
        stage.release(pos);
        QCOMPARE(stage.renderer.selectedBoxes().value(0).index, 1);
        if (i >= 0) {
            changes[i](stage);
            stage.release(pos);
            stage.renderer.setPositioningMode();
            stage.renderer.setZoomLevel(2);
            stage.renderer.setOrigin({100, 100});
        }
        stage.press(pos);
        stage.release(pos);
        QCOMPARE(stage.renderer.selectedBoxes().value(0).index, i < 0 ? 0 : 1);
    }
    Stage stage(plainScene(), m_cross);
    stage.drag({pos});
    stage.drag({pos, pos + QPoint(5, 2)});
    QCOMPARE(stage.box(1, 1), QRect(-45, -48, 40, 40));
    QCOMPARE(stage.box(1, 0), QRect(-60, -60, 40, 40));
}

void TestStageInput::cursors()
{
    const Qt::CursorShape shapes[] = {Qt::OpenHandCursor,  Qt::SizeAllCursor, Qt::SizeAllCursor,
                                      Qt::SizeAllCursor,   Qt::SizeAllCursor, Qt::SizeVerCursor,
                                      Qt::SizeHorCursor,   Qt::SizeAllCursor, Qt::SizeFDiagCursor,
                                      Qt::SizeVerCursor,   Qt::SizeHorCursor, Qt::SizeBDiagCursor,
                                      Qt::SizeBDiagCursor, Qt::SizeVerCursor, Qt::SizeFDiagCursor,
                                      Qt::SizeHorCursor,   Qt::ArrowCursor};
    Stage stage(plainScene(), m_cross);
    const auto shape = [&stage](int element) {
        return stage.renderer.elementCursor(Element(element)).shape();
    };
    for (int element = 0; element <= 16; ++element) {
        QCOMPARE(shape(element), shapes[element]);
    }
    stage.press({250, 250});
    QCOMPARE(shape(GraphicsRenderer::StageElement), Qt::ClosedHandCursor);
    stage.renderer.setCaptureMode();
    QCOMPARE(shape(GraphicsRenderer::SpriteElement), Qt::CrossCursor);
    QCOMPARE(shape(GraphicsRenderer::StageElement), Qt::OpenHandCursor);
    stage.renderer.setDrawContactBoxMode(ContactBoxCode::Collision);
    QCOMPARE(shape(GraphicsRenderer::StageElement), Qt::CrossCursor);
    QCOMPARE(shape(GraphicsRenderer::SpriteElement), Qt::SizeAllCursor);
}

void TestStageInput::drags_data()
{
    // `moves`: from the start
    // `item`: an item type, or one of the two below
    // `signalCount`: of moves
    columns<Change, QPoint, Points, int, QPoint, int>("change", "start", "moves", "item",
                                                      "expected", "signalCount");
    enum { Sprite = 3, Origin = 4, Guides = 5 };
    const auto row = [](const char* name, const Change& change, QPoint start, const Points& moves,
                        int item, QPoint expected, int signalCount) {
        QTest::newRow(name) << change << start << moves << item << expected << signalCount;
    };
    const Change near = [](Scene& scene) { scene.level = 5; };
    const Change far = [](Scene& scene) { scene.level = 0; };
    const auto crossMode = [](int mode, QPoint position, int level = 2) -> Change {
        return [=](Scene& scene) {
            scene.crosses[0].mode = mode;
            scene.crosses[0].position = position;
            scene.level = uchar(level);
        };
    };
    const auto spriteScale = [](double scale) -> Change {
        return [=](Scene& scene) { scene.sprites[0].scale = {scale, scale}; };
    };
    const Change hanging = [](Scene& scene) {
        scene.sprites[0].mode = 2;
        scene.sprites[0].parent = 1;
    };
    const Change fixedCross = [](Scene& scene) { scene.crosses[2].mode = 1; };
    const Change onSprite = [](Scene& scene) {
        scene.boxMode = 3;
        scene.sprites[0].position = {90, 90};
    };
    row("stage", {}, {250, 250}, {{3, 4}, {10, -5}}, Origin, {110, 95}, 0);
    row("stage, near", near, {250, 590}, {{3, 4}}, Origin, {103, 104}, 0);
    row("main cross", {}, {100, 100}, {{3, 4}, {10, -5}}, 0, {10, -5}, 2);
    row("near, less than half a pixel", near, {100, 100}, {{1, -1}}, 0, {0, 0}, 0);
    row("near, whole pixels", near, {100, 100}, {{6, 0}}, 0, {2, 0}, 1);
    row("near, the rest is kept", near, {100, 100}, {{6, 0}, {9, 0}, {10, 0}}, 0, {3, 0}, 2);
    row("far", far, {100, 100}, {{1, 0}, {2, 0}}, 0, {8, 0}, 2);
    row("along x", crossMode(5, {}), {100, 100}, {{3, 4}}, 0, {3, 0}, 1);
    row("along y", crossMode(9, {}), {100, 100}, {{3, 4}}, 0, {0, 4}, 1);
    row("absolute and near", crossMode(12, {100, 100}, 5), {100, 100}, {{6, 0}}, 0, {108, 100}, 1);
    row("fixed", fixedCross, {102, 162}, {{3, 4}}, Origin, {103, 104}, 0);
    row("sprite", {}, {145, 145}, {{3, 4}}, Sprite, {23, 24}, 1);
    row("large sprite", spriteScale(2), {145, 145}, {{5, -5}}, Sprite, {22, 18}, 1);
    row("mirrored sprite", spriteScale(-2), {55, 35}, {{5, -5}}, Sprite, {18, 22}, 1);
    row("sprite on a cross", hanging, {205, 145}, {{3, 4}}, 1, {63, 4}, 1);
    row("boxes on a sprite", onSprite, {150, 150}, {{3, 4}}, Sprite, {93, 94}, 1);
    row("vertical guide", {}, {300, 250}, {{7, 3}}, Guides, {207, 200}, 0);
    row("horizontal guide", {}, {250, 300}, {{7, 3}}, Guides, {200, 203}, 0);
}

void TestStageInput::drags()
{
    const auto [change, start, moves, item, expected, signalCount] =
        fetched<Change, QPoint, Points, int, QPoint, int>();
    Stage stage(changed(change), m_cross);
    QSignalSpy moved(&stage.renderer, &GraphicsRenderer::itemMoved);
    QSignalSpy released(&stage.renderer, &GraphicsRenderer::itemReleased);
    Points points{start};
    for (const QPoint& move : moves) {
        points.append(start + move);
    }
    stage.drag(points);
    QCOMPARE(item < 4    ? stage.renderer.itemPosition(GraphicsRenderer::ItemType(item), 0)
             : item == 4 ? stage.renderer.origin()
                         : stage.renderer.guideLines(),
             expected);
    QCOMPARE(moved.count(), signalCount);
    QCOMPARE(released.count(), signalCount ? 1 : 0);
    if (signalCount) {
        QCOMPARE(moved.last(), released.first());
        QCOMPARE(released.first().at(0).value<GraphicsRenderer::ItemType>(), item);
        QCOMPARE(released.first().at(2).toPoint(), expected);
    }
}

void TestStageInput::boxDrags_data()
{
    // `clicks`: the first without Shift
    // `points`: a drag, with Shift if it is the second to press
    columns<Change, Points, Points, Rects, QRect>("change", "clicks", "points", "attacks", "body");
    const QRect first(-60, -60, 40, 40);
    const QRect second(-50, -50, 40, 40);
    const QRect body(-30, -30, 40, 40);
    const auto row = [](const char* name, const Points& clicks, const Points& points,
                        const Rects& attacks, const QRect& bodyAfter, const Change& change = {}) {
        QTest::newRow(name) << change << clicks << points << attacks << bodyAfter;
    };
    const Change alongX = [](Scene& scene) { scene.boxMode = 6; };
    const Change near = [](Scene& scene) {
        scene.level = 5;
        scene.origin = {400, 400};
    };
    const QPoint by(5, 2);
    row("the last wins", {}, {{60, 60}, {65, 62}}, {first, second.translated(by)}, body);
    row("the first alone", {}, {{45, 45}, {50, 47}}, {first.translated(by), second}, body);
    row("bodies before attacks", {}, {{75, 75}, {80, 77}}, {first, second}, body.translated(by));
    row("along x", {}, {{45, 45}, {50, 47}}, {first.translated(5, 0), second}, body, alongX);
    row("near", {}, {{170, 170}, {176, 170}}, {first.translated(2, 0), second}, body, near);
    row("two", {{45, 45}}, {{60, 60}, {65, 62}}, {first.translated(by), second.translated(by)},
        body);
    row("of both types", {{45, 45}}, {{85, 85}, {90, 87}}, {first.translated(by), second},
        body.translated(by));
    row("taken out again", {{45, 45}}, {{48, 48}, {53, 50}}, {first, second}, body);

    const struct
    {
        QPoint sizer;
        int left, top, right, bottom;  // how far each goes with (-10,-20)
    } sizers[] = {{{40, 40}, -10, -20, 0, 0}, {{60, 40}, 0, -20, 0, 0},   {{40, 60}, -10, 0, 0, 0},
                  {{79, 40}, 0, -20, -10, 0}, {{40, 79}, -10, 0, 0, -20}, {{60, 79}, 0, 0, 0, -20},
                  {{79, 79}, 0, 0, -10, -20}, {{79, 60}, 0, 0, -10, 0}};
    for (const auto& sizer : sizers) {
        const QPoint at = sizer.sizer;
        row(qPrintable(QStringLiteral("handle at %1,%2").arg(at.x()).arg(at.y())), {{45, 45}},
            {at, at - QPoint(33, -5), at - QPoint(10, 20)},
            {first.adjusted(sizer.left, sizer.top, sizer.right, sizer.bottom), second}, body);
    }
    row("both stretched", {{45, 45}, {60, 60}}, {{89, 89}, {139, 89}},
        {QRect(-60, -60, 80, 40), QRect(-40, -50, 80, 40)}, body);
    row("turned inside out", {{45, 45}}, {{79, 79}, {19, 79}},
        {QRect(QPoint(-81, -60), QPoint(-60, -21)), second}, body);
}

void TestStageInput::boxDrags()
{
    const auto [change, clicks, points, attacks, body] =
        fetched<Change, Points, Points, Rects, QRect>();
    Stage stage(changed(change), m_cross);
    QSignalSpy released(&stage.renderer, &GraphicsRenderer::itemReleased);
    Qt::KeyboardModifiers shift = Qt::NoModifier;
    for (const QPoint& click : clicks) {
        stage.press(click, shift);
        stage.release(click);
        shift = Qt::ShiftModifier;
    }
    QCOMPARE(released.count(), 0);
    stage.drag(points, shift);
    QCOMPARE(released.count(), 1);
    QCOMPARE(Rects({stage.box(1, 0), stage.box(1, 1)}), attacks);
    QCOMPARE(stage.box(2, 0), body);
}

void TestStageInput::selection()
{
    Stage stage(plainScene(), m_cross);
    QSignalSpy released(&stage.renderer, &GraphicsRenderer::itemReleased);
    const QPoint attack(45, 45);
    const QPoint body(75, 75);
    const auto click = [&stage](QPoint pos, Qt::KeyboardModifiers modifiers = Qt::ShiftModifier) {
        stage.press(pos, modifiers);
        stage.release(pos);
        return stage.renderer.selectedContactBoxes().size();
    };
    const auto hasSizers = [&stage] {
        return stage.renderer.hitTest({40, 40}) == GraphicsRenderer::TopLeftSizer;
    };
    QCOMPARE(click(attack), 1);
    QVERIFY(hasSizers());
    QCOMPARE(click(attack + QPoint(0, 5)), 0);
    QVERIFY(!hasSizers());
    QCOMPARE(click(attack, Qt::NoModifier), 1);
    QCOMPARE(click(QPoint(85, 85)), 2);
    QVERIFY(hasSizers());
    // The list of the last click has nothing selected: the handles go, the selection stays.
    QCOMPARE(click(QPoint(85, 85)), 1);
    QVERIFY(!hasSizers());
    stage.renderer.keyPressed(Qt::Key_Right, Qt::NoModifier);
    QCOMPARE(stage.box(1, 0).left(), -60);
    QCOMPARE(released.count(), 1);
    QCOMPARE(click(QPoint(250, 250), Qt::NoModifier), 0);

    stage.drag({body, body + QPoint(4, 4)}, Qt::ControlModifier);
    QCOMPARE(stage.renderer.origin(), QPoint(104, 104));
    QCOMPARE(stage.box(2, 0).left(), -30);
    QCOMPARE(released.count(), 1);
}

void TestStageInput::selectedBoxIsTold()
{
    Stage stage(plainScene(), m_cross);
    QSignalSpy told(&stage.renderer, &GraphicsRenderer::boxSelectionChanged);
    const auto selected = [&stage] { return stage.renderer.selectedBoxes(); };
    stage.renderer.setSelectedBoxRect({1, 2, 3, 4});
    QCOMPARE(told.count(), 0);
    stage.press({45, 45});
    QCOMPARE(told.count(), 1);
    stage.renderer.mouseMoved({50, 47}, Qt::NoModifier);
    QCOMPARE(told.count(), 2);
    QCOMPARE(selected().size(), 1);
    QCOMPARE(selected()[0].rect, QRect(-55, -58, 40, 40));
    stage.release({50, 47});
    stage.renderer.setSelectedBoxRect(QRect());
    QCOMPARE(told.count(), 2);
    stage.renderer.setSelectedBoxRect({-10, -20, 30, 40});
    QCOMPARE(told.count(), 3);
    QCOMPARE(stage.lists[0]->at(0)->rect(), QRect(-60, -60, 40, 40));
    QCOMPARE(stage.box(1, 0), QRect(-10, -20, 30, 40));
    QCOMPARE(stage.renderer.hitTest({90, 80}), GraphicsRenderer::TopLeftSizer);
    stage.renderer.keyPressed(Qt::Key_Left, Qt::ShiftModifier);
    stage.renderer.keyPressed(Qt::Key_Down, Qt::ShiftModifier);
    stage.renderer.keyPressed(Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(told.count(), 5);
    QCOMPARE(stage.box(1, 0), QRect(-20, -10, 30, 40));
    // With two of them there is no rectangle to set.
    stage.press({55, 55}, Qt::ShiftModifier);
    stage.release({55, 55});
    QCOMPARE(selected().size(), 2);
    stage.renderer.setSelectedBoxRect({1, 2, 3, 4});
    QCOMPARE(told.count(), 6);
    stage.renderer.setContactBoxesLocked(ContactBoxCode::Attack, true);
    QVERIFY(stage.renderer.contactBoxesLocked(ContactBoxCode::Attack));
    QVERIFY(!stage.renderer.contactBoxesLocked(ContactBoxCode::Collision));
    QCOMPARE(selected().size(), 0);
    QCOMPARE(told.count(), 7);
    stage.renderer.deselectContactBoxes();
    QCOMPARE(told.count(), 7);
    // One that is drawn is there, and does not become selected.
    connect(&stage.renderer, &GraphicsRenderer::appendContactBox, &stage.renderer,
            [&stage](ContactBoxCode::BoxType, QRect rect) { return stage.lists[0]->add(rect); });
    stage.renderer.setDrawContactBoxMode(ContactBoxCode::Attack);
    stage.drag({{200, 200}, {220, 230}});
    stage.renderer.setPositioningMode();
    QCOMPARE(stage.lists[0]->count(), 3);
    QCOMPARE(selected().size(), 0);
}

void TestStageInput::drawnBoxes_data()
{
    // `expected`: null for none
    columns<int, Points, QRect>("level", "points", "expected");
    QTest::newRow("to the right") << 2 << Points{{200, 200}, {210, 215}} << QRect(100, 100, 11, 16);
    QTest::newRow("to the left") << 2 << Points{{210, 215}, {200, 200}} << QRect(100, 100, 11, 16);
    QTest::newRow("no width") << 2 << Points{{200, 200}, {199, 220}} << QRect();
    QTest::newRow("no height") << 2 << Points{{200, 200}, {220, 199}} << QRect();
    QTest::newRow("a click") << 2 << Points{{200, 200}} << QRect();
    QTest::newRow("on the grid") << 5 << Points{{203, 201}, {209, 201}} << QRect(25, 25, 3, 1);
    QTest::newRow("far") << 0 << Points{{200, 200}, {202, 201}} << QRect(400, 400, 9, 5);
}

void TestStageInput::drawnBoxes()
{
    QFETCH(int, level);
    QFETCH(Points, points);
    QFETCH(QRect, expected);
    Scene scene = plainScene();
    scene.level = uchar(level);
    for (const bool accepts : {false, true}) {
        Stage stage(scene, m_cross);
        stage.renderer.setDrawContactBoxMode(ContactBoxCode::Collision);
        QRect drawn;
        connect(&stage.renderer, &GraphicsRenderer::appendContactBox, &stage.renderer,
                [&](ContactBoxCode::BoxType type, const QRect& rect) -> ContactBoxCode* {
                    drawn = rect;
                    return accepts && type == ContactBoxCode::Collision ? stage.lists[1]->add(rect)
                                                                        : nullptr;
                });
        stage.drag(points);
        QCOMPARE(drawn, expected);
        const bool isThere = accepts && expected.isValid();
        QSignalSpy exits(&stage.renderer, &GraphicsRenderer::contactDrawingExit);
        stage.release({}, Qt::RightButton);
        QCOMPARE(exits.count(), 1);
        QCOMPARE(stage.renderer.clickMode(), GraphicsRenderer::PositioningMode);
        // A new box is left selected, with its handles.
        QCOMPARE(stage.renderer.selectedContactBoxes().size(), isThere ? 1 : 0);
        if (isThere) {
            scene.zoom = stage.renderer.zoom();
            QCOMPARE(stage.renderer.hitTest(scene.origin + scene.scaled(expected.topLeft())),
                     GraphicsRenderer::TopLeftSizer);
            QCOMPARE(stage.renderer.selectedContactBoxes().first(), stage.lists[1]->at(1));
        }
    }
}

void TestStageInput::modesInTheMiddleOfADrag()
{
    Stage stage(plainScene(), m_cross);
    GraphicsRenderer& renderer = stage.renderer;
    QSignalSpy released(&renderer, &GraphicsRenderer::itemReleased);
    int drawn = 0;
    connect(&renderer, &GraphicsRenderer::appendContactBox, &renderer, [&drawn] {
        ++drawn;
        return nullptr;
    });
    connect(&renderer, &GraphicsRenderer::itemReleased, &renderer,
            &GraphicsRenderer::updateSelectedBoxes);
    // A drag is not led astray by who asks what lies elsewhere.
    stage.press({145, 145});
    QCOMPARE(renderer.hitTest({65, 65}), GraphicsRenderer::ContactBoxElement);
    renderer.mouseMoved({148, 149}, Qt::NoModifier);
    stage.release({148, 149});
    QCOMPARE(renderer.itemPosition(GraphicsRenderer::SpriteType, 0), QPoint(23, 24));
    released.clear();

    stage.press({45, 45});
    renderer.mouseMoved({50, 47}, Qt::NoModifier);
    renderer.setDrawContactBoxMode(ContactBoxCode::Attack);
    stage.release({50, 47});
    QCOMPARE(stage.lists[0]->at(0)->rect(), QRect(-55, -58, 40, 40));
    QCOMPARE(released.count(), 1);
    QCOMPARE(drawn, 0);

    // The right button ends drawing also while the left one is down.
    stage.press({200, 200});
    renderer.mouseMoved({220, 220}, Qt::NoModifier);
    stage.release({220, 220}, Qt::RightButton);
    stage.release({220, 220});
    QCOMPARE(renderer.clickMode(), GraphicsRenderer::PositioningMode);
    QCOMPARE(renderer.hitTest({210, 210}), GraphicsRenderer::StageElement);

    // A box that was moved is stretched from where it is now.
    stage.drag({{50, 47}});
    stage.drag({{84, 81}, {94, 81}});
    QCOMPARE(stage.lists[0]->at(0)->rect(), QRect(-55, -58, 50, 40));

    // The list is another one in the middle of a drag.
    stage.press({50, 50});
    StageData::Boxes none(ContactBoxCode::Attack);
    renderer.setContactBoxes(ContactBoxCode::Attack, &none);
    renderer.mouseMoved({90, 90}, Qt::NoModifier);
    stage.release({90, 90});
    QVERIFY(renderer.selectedContactBoxes().isEmpty());

    // The sprite goes in the middle of a drag.
    stage.press({145, 145});
    stage.provider.rows.clear();
    emit stage.provider.changed();
    renderer.mouseMoved({150, 150}, Qt::NoModifier);
    stage.release({150, 150});
    QCOMPARE(released.count(), 3);
}

void TestStageInput::capture()
{
    QImage image(50, 30, QImage::Format_Indexed8);
    for (int i = 0; i < 1500; ++i) {
        image.scanLine(i / 50)[i % 50] = uchar(i % 50 + 4 * (i / 50));
    }
    StageData::Sprite sprite(image);
    StageData::Sprite colourful(image.convertToFormat(QImage::Format_ARGB32));
    Scene scene = plainScene();
    scene.level = 3;
    scene.clickMode = GraphicsRenderer::CaptureMode;
    scene.sprites[0].sprite = &sprite;
    scene.sprites[0].mode = 2;
    Stage stage(scene, m_cross);
    QSignalSpy captured(&stage.renderer, &GraphicsRenderer::colorCaptured);
    const auto last = [&captured] { return captured.last().at(0).toInt(); };
    stage.press({150, 160});
    QCOMPARE(last(), 5 + 4 * 10);
    stage.renderer.mouseMoved({160, 140}, Qt::NoModifier);
    QCOMPARE(last(), 10);
    for (const QPoint outside : {QPoint(9999, 9999), QPoint(INT_MAX, INT_MAX)}) {
        stage.renderer.mouseMoved(outside, Qt::NoModifier);
        QCOMPARE(last(), 49 + 4 * 29);
    }
    stage.renderer.mouseMoved({INT_MIN, -5}, Qt::NoModifier);
    QCOMPARE(last(), 0);
    stage.release({});
    stage.provider.rows[0].sprite = &colourful;
    stage.press({150, 160});
    stage.press({250, 290});
    QCOMPARE(captured.count(), 5);
    QCOMPARE(stage.renderer.itemPosition(GraphicsRenderer::SpriteType, 0), QPoint(20, 20));
}

void TestStageInput::strangeNumbers()
{
    QRandomGenerator random(Seed);
    const double reals[] = {0, -0.0, 1, -1e300, 1e300, 1e-300, NAN, INFINITY, -INFINITY};
    const int ints[] = {0, 1, -1, 100, INT_MAX, INT_MIN, INT_MAX - 1, 1 << 28};
    const auto real = [&] { return reals[random.bounded(int(std::size(reals)))]; };
    const auto number = [&] { return ints[random.bounded(int(std::size(ints)))]; };
    const auto point = [&] { return QPoint(number(), number()); };
    for (int round = 0; round < 500; ++round) {
        Scene scene = randomScene(random);
        scene.clickMode = GraphicsRenderer::PositioningMode;
        scene.guides = point();
        scene.crosses[round % 3].position = point();
        scene.boxes[round % 8].append(QRect(point(), point()));
        scene.boxes[0].prepend(QRect(0, 0, 0, 0));
        for (PlainItem& item : scene.sprites) {
            item.position = point();
            item.size = QSize(number(), number());
            item.scale = {real(), real()};
            item.rotation = real();
        }
        Stage stage(scene, m_cross);
        for (int i = 0; i < 30; ++i) {
            const QPoint pos =
                random.bounded(2) ? QPoint(random.bounded(250), random.bounded(250)) : point();
            const bool isShift = random.bounded(2);
            stage.drag({pos, pos, point(), point(), {120, 110}},
                       isShift ? Qt::ShiftModifier : Qt::NoModifier);
            stage.renderer.keyPressed(Qt::Key_Down, Qt::NoModifier);
            stage.renderer.updateSelectedBoxes();
            stage.renderer.mouseWheel(number());
            if (i % 10 == 9) {
                stage.renderer.setDrawContactBoxMode(ContactBoxCode::Attack);
                stage.drag({pos, point(), {40, 50}});
                stage.renderer.setPositioningMode();
            }
        }
        QCOMPARE(stage.renderer.clickMode(), GraphicsRenderer::PositioningMode);
    }
}

QTEST_MAIN(TestStageInput)
#include "tst_stageinput.moc"
